// Everything that a document says, for programs. docs/mxdinfo.schema.json states the form.
#include <cmath>
#include <map>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/data_source.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/loss_words.h"
#include "mxdinfo/output/json_parts.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr int schema_version = 2;

Json coordinate_system_json(const Tmxd_coordinate_system* system) {
  if (!system) return nullptr;
  const std::string_view type = system->type_name();
  const bool wkt_text = type != Tmxd_unknown_coordinate_system::type;
  const auto epsg = epsg_code(*system);
  return {{"kind", type == Tmxd_geographic_coordinate_system::type  ? "geographic"
                   : type == Tmxd_projected_coordinate_system::type ? "projected"
                                                                    : "unknown"},
          {"name", coordinate_system_name(*system)},
          {"epsg", epsg ? Json(*epsg) : Json(nullptr)},
          {"wkt", text_or_null(utf8_of_narrow(system->get_wkt()))},
          {"text", wkt_text ? Json(nullptr) : text_or_null(coordinate_system_text(*system))}};
}

Json source_json(const Tmxd_layer& layer) {
  const Source source = source_of(layer);
  if (source.empty()) return nullptr;
  return {{"kind", data_kind(layer)},
          {"type", text_or_null(source.type)},
          {"workspace", text_or_null(source.workspace)},
          {"feature_dataset", text_or_null(source.feature_dataset)},
          {"dataset", text_or_null(source.dataset)},
          {"path", text_or_null(data_path(layer))},
          {"relative", is_relative(source.workspace)}};
}

// Null where there is no limit, or where the number can be none.
Json scale_json(double denominator) {
  constexpr double largest = 1e12;
  const bool limits = std::isfinite(denominator) && denominator > 0 && denominator <= largest;
  return limits ? Json(denominator) : Json(nullptr);
}

// The index of the group that holds the layer, in the list that is written.
using Group_indices = std::map<const Tmxd_layer*, std::size_t>;

Json parent_json(const Layer_place& place, const Group_indices& indices) {
  return place.groups.empty() ? Json(nullptr) : Json(indices.at(place.groups.back()));
}

Json layer_json(const Layer_place& place, const Group_indices& indices) {
  const Tmxd_layer& layer = *place.layer;
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  const auto shown = visible(layer);
  return {{"kind", kind_of(layer)},
          {"name", utf8(layer.layer_name)},
          {"parent", parent_json(place, indices)},
          {"read", true},
          {"visible", shown ? Json(*shown) : Json(nullptr)},
          {"min_scale", scale_json(layer.min_scale)},
          {"max_scale", scale_json(layer.max_scale)},
          {"geometry", text_or_null(geometry_of(layer))},
          {"source", source_json(layer)},
          {"coordinate_system", coordinate_system_json(coordinate_system_of(layer))},
          {"definition_query", nullptr},
          {"display_field", feature ? text_or_null(utf8(feature->str1)) : Json(nullptr)},
          {"labels", nullptr},
          {"renderer", renderer_json(renderer_of(layer))}};
}

// References to layers and maps stored before are none of their own.
Json layers_json(const Tmxd_map& map) {
  Json layers = Json::array();
  Group_indices indices;
  for (const Layer_place& place : placed_layers(map)) {
    if (place.layer->repeat) continue;
    indices.emplace(place.layer, layers.size());
    layers.push_back(layer_json(place, indices));
  }
  return layers;
}

Json maps_json(const Tmxd_mxd& document) {
  Json maps = Json::array();
  for (const auto& map : document.maps) {
    if (map->repeat) continue;
    maps.push_back({{"name", utf8(map->name)},
                    {"coordinate_system", coordinate_system_json(map->coordinate_system.get())},
                    {"extent", nullptr},
                    {"layers", layers_json(*map)}});
  }
  return maps;
}

Json losses_json(const std::vector<Decode_error>& errors) {
  Json losses = Json::array();
  for (const Decode_error& object : errors) {
    const Loss_words words = loss_words(object.type);
    losses.push_back({{"map", nullptr},
                      {"layer", nullptr},
                      {"what", words.subject},
                      {"consequence", words.consequence},
                      {"type", object.type},
                      {"number", object.number},
                      {"position", object.position}});
  }
  return losses;
}

Json document_json(const Report& report) {
  return {{"schema_version", schema_version},
          {"tool", {{"name", "mxdinfo"}, {"version", MXDINFO_VERSION}}},
          {"file", {{"path", report.name}, {"size", report.size}}},
          {"readable", report.failure.empty()},
          {"reason", text_or_null(report.failure)},
          {"title", nullptr},
          {"author", nullptr},
          {"summary", nullptr},
          {"description", nullptr},
          {"tags", nullptr},
          {"credits", nullptr},
          {"hyperlink_base", nullptr},
          {"arcmap_version", nullptr},
          {"last_saved", {{"path", nullptr}, {"date", nullptr}}},
          {"maps", maps_json(report.content)},
          {"losses", losses_json(report.errors)}};
}

class Json_writer final : public Report_writer {
 public:
  explicit Json_writer(const Options& options)
      : lines_(options.format == Format::ndjson), single_(options.single) {}

  std::string begin() const override { return in_array() ? "[" : ""; }

  std::string document(const Report& report) const override {
    const std::string text =
        document_json(report).dump(lines_ ? -1 : 2, ' ', false, Json::error_handler_t::replace);
    if (!in_array()) return text + "\n";
    return (report.index == 0 ? "\n" : ",\n") + text;
  }

  std::string end(std::span<const Summary> /*documents*/) const override {
    return in_array() ? "\n]\n" : "";
  }

 private:
  bool in_array() const { return !lines_ && !single_; }

  bool lines_;
  bool single_;
};

}  // namespace

std::unique_ptr<Report_writer> make_json_writer(const Options& options) {
  return std::make_unique<Json_writer>(options);
}

}  // namespace mxdinfo
