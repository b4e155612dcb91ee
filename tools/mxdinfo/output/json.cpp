// Everything that is known of a document, for programs. docs/mxdinfo.schema.json describes it.
#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/data_source.h"
#include "mxdinfo/facts/deep_search.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/stream_hash.h"
#include "mxdinfo/output/json_list_stream.h"
#include "mxdinfo/output/json_parts.h"
#include "mxdinfo/output/layer_filter.h"
#include "mxdinfo/output/report_writer.h"
#include "outline/epsg_code.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr int schema_version = 2;

Json coordinate_system_json(const Tmxd_coordinate_system* system) {
  if (!system) return nullptr;
  const std::string_view type = system->type_name();
  const bool wkt_text = type != Tmxd_unknown_coordinate_system::type;
  const auto epsg = epsg_code(system->get_wkt());
  return {{"kind", type == Tmxd_geographic_coordinate_system::type  ? "geographic"
                   : type == Tmxd_projected_coordinate_system::type ? "projected"
                                                                    : "unknown"},
          {"name", coordinate_system_name(*system)},
          {"epsg", epsg ? Json(*epsg) : Json(nullptr)},
          {"wkt", text_or_null(utf8_of_narrow(system->get_wkt()))},
          {"text", wkt_text ? Json(nullptr) : text_or_null(coordinate_system_text(*system))}};
}

// With a state, if there is one, has also where the data is.
Json source_json(const Tmxd_layer& layer, const Source_state* state) {
  const Source source = source_of(layer);
  if (source.empty()) return nullptr;
  Json json = {{"kind", data_kind(layer)},
               {"type", text_or_null(source.type)},
               {"workspace", text_or_null(source.workspace)},
               {"feature_dataset", text_or_null(source.feature_dataset)},
               {"dataset", text_or_null(source.dataset)},
               {"path", text_or_null(data_path(layer))},
               {"relative", is_relative(source.workspace)}};
  set_state(json, state);
  return json;
}

// Null if there is no limit, or the number is impossible.
Json scale_json(double denominator) {
  const bool limits = denominator != 0 && is_possible_scale(denominator);
  return limits ? Json(denominator) : Json(nullptr);
}

Json wide_or_null(const std::optional<Wide_string>& text) {
  return text ? text_or_null(utf8(*text)) : Json(nullptr);
}

Json label_json(const Label_class& label) {
  Json json = {{"expression", utf8(label.expression)}, {"color", nullptr}, {"font", nullptr}};
  if (label.color) json["color"] = color_hex(*label.color);
  if (label.font) {
    json["font"] = {{"name", text_or_null(utf8(label.font->name))},
                    {"size", label.font->size_in_points}};
  }
  return json;
}

Json labels_json(const std::optional<Labels>& labels) {
  if (!labels) return nullptr;
  Json classes = Json::array();
  for (const Label_class& label : labels->classes) classes.push_back(label_json(label));
  return {{"shown", labels->shown}, {"classes", std::move(classes)}};
}

// The index of each record's layer in the list that is written, which has no references.
std::vector<std::size_t> written_indices(const Map_outline& map) {
  std::vector<std::size_t> indices;
  std::size_t next = 0;
  for (const Layer_record& record : map.records) {
    indices.push_back(next);
    if (!record.is_reference) ++next;
  }
  return indices;
}

// What only decoded layers have is null for others.
Json layer_json(const Listed_layer& listed, const std::vector<std::size_t>& indices,
                const Report& report) {
  const Layer_record& record = listed.record();
  const Tmxd_layer* layer = listed.layer();
  const auto shown = layer ? visible(*layer) : std::nullopt;
  const auto differs = differs_from_map(listed);
  const auto* renderer = layer ? renderer_of(*layer) : nullptr;
  return {{"kind", kind_word(record.kind())},
          {"name", name_of(record)},
          {"parent", record.parent ? Json(indices[*record.parent]) : Json(nullptr)},
          {"read", layer != nullptr},
          {"kind_in_words", kind_in_words(record.class_id)},
          {"class_id", guid_text(record.class_id)},
          {"size", record.length != 0 ? Json(record.length) : Json(nullptr)},
          {"visible", shown ? Json(*shown) : Json(nullptr)},
          {"min_scale", layer ? scale_json(layer->min_scale) : Json(nullptr)},
          {"max_scale", layer ? scale_json(layer->max_scale) : Json(nullptr)},
          {"geometry", layer ? text_or_null(geometry_of(*layer)) : Json(nullptr)},
          {"source", layer ? source_json(*layer, report.source_state(layer)) : Json(nullptr)},
          {"coordinate_system",
           layer ? coordinate_system_json(coordinate_system_of(*layer)) : Json(nullptr)},
          {"differs_from_map", differs ? Json(*differs) : Json(nullptr)},
          {"definition_query", wide_or_null(record.facts.definition_query)},
          {"display_field", layer ? text_or_null(display_field_of(*layer)) : Json(nullptr)},
          {"labels", labels_json(record.facts.labels)},
          {"renderer", renderer_json(renderer, record.facts)}};
}

void write_layer(Json_list_stream& out, const Listed_layer& listed,
                 const std::vector<std::size_t>& indices, const Report& report) {
  const Json json = layer_json(listed, indices, report);
  if (json["renderer"].is_null()) {
    out.add(json);
    return;
  }
  if (!out.open(json)) return;
  for (const auto& entry : legend_entries(*renderer_of(*listed.layer()), listed.record().facts)) {
    if (!out.add(class_json(entry))) break;
  }
  out.close();
}

Json extent_json(const std::optional<Extent>& extent) {
  if (!extent) return nullptr;
  return {{"xmin", extent->xmin},
          {"ymin", extent->ymin},
          {"xmax", extent->xmax},
          {"ymax", extent->ymax}};
}

void write_map(Json_list_stream& out, const Map_outline& map, const Report& report) {
  const auto* system = map.map->coordinate_system.get();
  if (!out.open({{"name", name_of(map)},
                 {"coordinate_system", coordinate_system_json(system)},
                 {"extent", extent_json(map.extent)},
                 {"layers", Json::array()}})) {
    return;
  }
  const auto indices = written_indices(map);
  for (const Listed_layer& layer : listed_layers(map)) {
    if (out.is_full()) break;
    write_layer(out, layer, indices, report);
  }
  out.close();
}

Json loss_json(const Loss& loss) {
  return {{"map", loss.map ? Json(name_of(*loss.map)) : Json(nullptr)},
          {"layer", loss.layer ? Json(path_in_map(*loss.layer)) : Json(nullptr)},
          {"what", loss.words.subject},
          {"consequence", loss.words.consequence},
          {"type", loss.error ? Json(loss.error->type) : Json(nullptr)},
          {"number", loss.error ? Json(loss.error->number) : Json(nullptr)},
          {"position", offset_of(loss) ? Json(*offset_of(loss)) : Json(nullptr)}};
}

void write_losses(Json_list_stream& out, const Report& report) {
  for (const Loss& loss : losses_of(report)) {
    if (!out.add(loss_json(loss))) break;
  }
  if (!out.is_full()) return;
  Loss cut;
  cut.words = {"output", "it is too long, and the rest is left out"};
  out.add_end(loss_json(cut));
}

Json file_json(const Report& report) {
  const auto bytes = std::span(reinterpret_cast<const std::uint8_t*>(report.name_bytes.data()),
                               report.name_bytes.size());
  const bool readable = report.failure.empty();
  return {{"path", report.name},
          {"path_bytes", text_or_null(bytes_to_hex(bytes, ""))},
          {"size", report.size},
          {"modified", report.modified ? Json(time_text(*report.modified)) : Json(nullptr)},
          {"maps_hash", readable ? Json(stream_hash(report.maps.bytes())) : Json(nullptr)}};
}

// Up to the list of maps.
Json document_json(const Report& report) {
  const Document_facts& facts = report.outline.document;
  const auto properties = facts.properties.value_or(Document_facts::Properties());
  std::string date = facts.saved_date ? date_text(*facts.saved_date) : std::string();
  std::replace(date.begin(), date.end(), ' ', 'T');
  return {{"schema_version", schema_version},
          {"tool", {{"name", "mxdinfo"}, {"version", MXDINFO_VERSION}}},
          {"file", file_json(report)},
          {"readable", report.failure.empty()},
          {"reason", text_or_null(report.failure)},
          {"title", text_or_null(utf8(properties.title))},
          {"author", text_or_null(utf8(properties.author))},
          {"summary", text_or_null(utf8(properties.summary))},
          {"description", text_or_null(utf8(properties.description))},
          {"tags", text_or_null(utf8(properties.tags))},
          {"credits", text_or_null(utf8(properties.credits))},
          {"hyperlink_base", text_or_null(utf8(properties.hyperlink_base))},
          {"arcmap_version", wide_or_null(facts.version)},
          {"last_saved", {{"path", wide_or_null(facts.saved_path)}, {"date", text_or_null(date)}}},
          {"maps", Json::array()}};
}

void write_document(Json_list_stream& out, const Report& report) {
  if (!out.open(document_json(report))) return;
  for (const Map_outline& map : report.outline.maps) {
    if (out.is_full()) break;
    write_map(out, map, report);
  }
  out.next_list("losses");
  write_losses(out, report);
  out.close();
}

void write_losses_alone(Json_list_stream& out, const Report& report) {
  if (!out.open({{"file", file_json(report)},
                 {"readable", report.failure.empty()},
                 {"reason", text_or_null(report.failure)},
                 {"losses", Json::array()}})) {
    return;
  }
  write_losses(out, report);
  out.close();
}

Json hit_json(const Deep_hit& hit) {
  return {{"map", hit.map ? Json(name_of(*hit.map)) : Json(nullptr)},
          {"layer", hit.layer ? Json(path_in_map(*hit.layer)) : Json(nullptr)},
          {"position", hit.position},
          {"context", hit.context}};
}

std::size_t undecoded_layers(const Report& report) {
  const Summary summary = summary_of(report);
  return summary.layers - summary.decoded_layers;
}

// Returns how many layers and places were found.
std::size_t write_found(Json_list_stream& out, const Report& report, const Layer_filter& filter) {
  std::size_t matches = 0;
  if (!out.open({{"file", file_json(report)},
                 {"readable", report.failure.empty()},
                 {"reason", text_or_null(report.failure)},
                 {"undecoded_layers", undecoded_layers(report)},
                 {"layers", Json::array()}})) {
    return matches;
  }
  const auto is_wanted = [&](const Listed_layer& layer) { return filter.is_wanted(report, layer); };
  for (const Map_outline& map : report.outline.maps) {
    for (const Listed_layer& listed : listed_layers(map)) {
      if (out.is_full()) break;
      if (!is_wanted(listed)) continue;
      const Tmxd_layer& layer = *listed.layer();
      out.add({{"map", name_of(map)},
               {"layer", path_in_map(listed)},
               {"source", source_json(layer, report.source_state(&layer))}});
      ++matches;
    }
  }
  out.next_list("elsewhere");
  if (!filter.deep_text().empty()) {
    for (const Deep_hit& hit : deep_search(report, filter.deep_text(), is_wanted)) {
      if (!out.add(hit_json(hit))) break;
      ++matches;
    }
  }
  out.close();
  return matches;
}

class Json_writer final : public Report_writer {
 public:
  explicit Json_writer(const Options& options)
      : lines_(options.format == Format::ndjson),
        single_(options.single),
        losses_alone_(options.view == View::losses),
        filter_(options) {}

  std::string begin() const override { return in_array() ? "[" : ""; }

  Written_document document(const Report& report) const override {
    Json_list_stream out(max_output_size(report), !lines_);
    const std::size_t matches = write(out, report);
    const std::string text = out.take();
    if (!in_array()) return {text + "\n", !out.is_full(), matches};
    return {(report.index == 0 ? "\n" : ",\n") + text, !out.is_full(), matches};
  }

  std::string end(std::span<const Summary> /*documents*/) const override {
    return in_array() ? "\n]\n" : "";
  }

 private:
  bool in_array() const { return !lines_ && !single_; }

  // Returns how many layers and places a search found.
  std::size_t write(Json_list_stream& out, const Report& report) const {
    if (filter_.is_search()) return write_found(out, report, filter_);
    losses_alone_ ? write_losses_alone(out, report) : write_document(out, report);
    return 0;
  }

  bool lines_;
  bool single_;
  bool losses_alone_;
  Layer_filter filter_;
};

}  // namespace

std::unique_ptr<Report_writer> make_json_writer(const Options& options) {
  return std::make_unique<Json_writer>(options);
}

}  // namespace mxdinfo
