// Everything that a document says, for programs. docs/mxdinfo.schema.json states the form.
#include <fmt/format.h>

#include <chrono>
#include <cmath>

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

std::string_view kind_word(Layer_kind kind) {
  switch (kind) {
    case Layer_kind::group:
      return "group";
    case Layer_kind::feature:
      return "feature";
    case Layer_kind::raster:
      return "raster";
    case Layer_kind::graphics:
      return "graphics";
    case Layer_kind::basemap:
      return "basemap";
    case Layer_kind::map_service:
      return "map_service";
    case Layer_kind::image_service:
      return "image_service";
    case Layer_kind::unknown:
      break;
  }
  return "unknown";
}

Json labels_json(const std::optional<Labels>& labels) {
  if (!labels) return nullptr;
  Json classes = Json::array();
  for (const Label_class& label : labels->classes) {
    Json font = nullptr, color = nullptr;
    if (label.font) {
      font = {{"name", text_or_null(utf8(label.font->name))}, {"size", label.font->size_in_points}};
    }
    if (label.color) {
      color = fmt::format("#{:02x}{:02x}{:02x}", label.color->red, label.color->green,
                          label.color->blue);
    }
    classes.push_back({{"expression", utf8(label.expression)}, {"color", color}, {"font", font}});
  }
  return {{"shown", labels->shown}, {"classes", std::move(classes)}};
}

// Of layers that were not decoded, only these are known.
Json layer_json(const Layer_record& record, const Json& parent) {
  return {{"kind", kind_word(record.kind())},
          {"name", utf8(record.name)},
          {"parent", parent},
          {"read", record.layer != nullptr},
          {"kind_in_words", kind_in_words(record.class_id)},
          {"visible", nullptr},
          {"min_scale", nullptr},
          {"max_scale", nullptr},
          {"geometry", nullptr},
          {"source", nullptr},
          {"coordinate_system", nullptr},
          {"definition_query", nullptr},
          {"display_field", nullptr},
          {"labels", nullptr},
          {"renderer", nullptr}};
}

void add_decoded(Json& json, const Tmxd_layer& layer, const Feature_facts& facts) {
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  const auto shown = visible(layer);
  json["name"] = utf8(layer.layer_name);
  json["visible"] = shown ? Json(*shown) : Json(nullptr);
  json["min_scale"] = scale_json(layer.min_scale);
  json["max_scale"] = scale_json(layer.max_scale);
  json["geometry"] = text_or_null(geometry_of(layer));
  json["source"] = source_json(layer);
  json["coordinate_system"] = coordinate_system_json(coordinate_system_of(layer));
  json["definition_query"] = text_or_null(facts.definition_query);
  if (feature) json["display_field"] = text_or_null(utf8(feature->str1));
  json["labels"] = labels_json(facts.labels);
  json["renderer"] = renderer_json(renderer_of(layer), facts);
}

// References to layers and maps stored before are none of their own.
Json layers_json(const Map_outline& map) {
  Json layers = Json::array();
  std::vector<std::size_t> written(map.records.size());
  for (std::size_t i = 0; i < map.records.size(); ++i) {
    const Layer_record& record = map.records[i];
    if (record.is_reference) continue;
    written[i] = layers.size();
    Json json = layer_json(record, record.parent ? Json(written[*record.parent]) : Json(nullptr));
    if (record.layer) add_decoded(json, *record.layer, record.facts);
    layers.push_back(std::move(json));
  }
  return layers;
}

Json maps_json(const Outline& outline) {
  Json maps = Json::array();
  for (const Map_outline& map : outline.maps) {
    Json extent = nullptr;
    if (const auto& e = map.extent) {
      extent = {{"xmin", e->xmin}, {"ymin", e->ymin}, {"xmax", e->xmax}, {"ymax", e->ymax}};
    }
    maps.push_back({{"name", utf8(map.map->name)},
                    {"coordinate_system", coordinate_system_json(map.map->coordinate_system.get())},
                    {"extent", std::move(extent)},
                    {"layers", layers_json(map)}});
  }
  return maps;
}

// "2019-01-31T13:05:00", from days since 1899-12-30; null where it is no date of this time.
Json date_json(const std::optional<double>& days) {
  constexpr double first_day = 2, last_day = 2958465;  // 1900 to 9999
  if (!days || !(*days >= first_day && *days <= last_day)) return nullptr;
  using namespace std::chrono;
  constexpr sys_days start = year{1899} / December / 30;
  const auto time = start + seconds(std::llround(*days * 86400));
  const year_month_day date{floor<std::chrono::days>(time)};
  const hh_mm_ss clock{time - floor<std::chrono::days>(time)};
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}", static_cast<int>(date.year()),
                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                     clock.hours().count(), clock.minutes().count(), clock.seconds().count());
}

struct Loss_place {
  Json map = nullptr;
  Json layer = nullptr;
};

// The layer whose object holds the position, with the groups that hold it.
Json path_json(const Map_outline& map, std::uint64_t position) {
  constexpr std::size_t max_depth = 40;
  const auto holds = [&](const Layer_record& record) {
    return position >= record.position && position - record.position < record.length;
  };
  // A group's object holds those of its members, which come after it.
  const auto found = std::find_if(map.records.rbegin(), map.records.rend(), holds);
  if (found == map.records.rend()) return nullptr;
  std::string path = utf8(found->name);
  auto parent = found->parent;
  for (std::size_t depth = 0; parent && depth < max_depth; ++depth) {
    path = utf8(map.records[*parent].name) + " / " + path;
    parent = map.records[*parent].parent;
  }
  return path;
}

Loss_place place_of(const Outline& outline, std::int64_t position) {
  const auto at = static_cast<std::uint64_t>(position);
  for (const Map_outline& map : outline.maps) {
    if (at >= map.position && at < map.end) return {utf8(map.map->name), path_json(map, at)};
  }
  return {};
}

Json losses_json(const Report& report) {
  Json losses = Json::array();
  for (const Decode_error& error : report.errors) {
    const Loss_words words = loss_words(error.type);
    const Loss_place place = place_of(report.outline, error.position);
    losses.push_back({{"map", place.map},
                      {"layer", place.layer},
                      {"what", words.subject},
                      {"consequence", words.consequence},
                      {"type", error.type},
                      {"number", error.number},
                      {"position", error.position}});
  }
  return losses;
}

Json document_json(const Report& report) {
  const Document_facts& facts = report.outline.document;
  const auto properties = facts.properties.value_or(Document_facts::Properties());
  return {{"schema_version", schema_version},
          {"tool", {{"name", "mxdinfo"}, {"version", MXDINFO_VERSION}}},
          {"file", {{"path", report.name}, {"size", report.size}}},
          {"readable", report.failure.empty()},
          {"reason", text_or_null(report.failure)},
          {"title", text_or_null(utf8(properties.title))},
          {"author", text_or_null(utf8(properties.author))},
          {"summary", text_or_null(utf8(properties.summary))},
          {"description", text_or_null(utf8(properties.description))},
          {"tags", text_or_null(utf8(properties.tags))},
          {"credits", text_or_null(utf8(properties.credits))},
          {"hyperlink_base", text_or_null(utf8(properties.hyperlink_base))},
          {"arcmap_version", text_or_null(facts.version)},
          {"last_saved",
           {{"path", text_or_null(facts.saved_path)}, {"date", date_json(facts.saved_date)}}},
          {"maps", maps_json(report.outline)},
          {"losses", losses_json(report)}};
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
