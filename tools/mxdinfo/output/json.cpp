// Everything that a document says, for programs. docs/mxdinfo.schema.json states the form.
#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/names_by_number.h"
#include "mxdinfo/output/json_parts.h"
#include "mxdinfo/output/report_writer.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr int schema_version = 1;

Json text_or_null(std::string_view text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

Json coordinate_system_json(const Tmxd_coordinate_system* system) {
  if (!system) return nullptr;
  Json json = {{"class", system->type_name()},
               {"name", coordinate_system_name(*system)},
               {"wkt", utf8_of_narrow(system->get_wkt())}};
  if (dynamic_cast<const Tmxd_unknown_coordinate_system*>(system)) {
    json["text"] = coordinate_system_text(*system);
  }
  return json;
}

Json feature_class_json(const Tmxd_basic_feature_class_name* name) {
  if (!name) return nullptr;
  const auto& dataset = name->feature_dataset_name;
  return {{"class", name->type_name()},
          {"name", utf8(name->name)},
          {"type_name1", utf8(name->type_name1)},
          {"type_name2", utf8(name->type_name2)},
          {"geometry_type", name->geom_type},
          {"geometry", text_or_null(geometry_name(name->geom_type))},
          {"feature_dataset", dataset.exists ? Json(utf8(dataset.str1)) : Json(nullptr)}};
}

Json raster_dataset_json(const Tmxd_basic_raster_dataset_name* name) {
  if (!name) return nullptr;
  return {{"class", name->type_name()},
          {"name", utf8(name->str1)},
          {"texts", {utf8(name->str2), utf8(name->str3), utf8(name->str4)}}};
}

Json legend_group_json(const Tmxd_legend_group& group) {
  if (!group.exists) return nullptr;
  Json classes = Json::array();
  for (const auto& item : group.legend_classes) {
    classes.push_back(
        {{"label", utf8(item->label)}, {"symbol", symbol_json(item->symbol_slot.get())}});
  }
  return {{"heading", utf8(group.label)}, {"classes", std::move(classes)}};
}

void add_unique_values(Json& json, const Tmxd_unique_value_renderer& renderer) {
  json["default_symbol"] = symbol_json(renderer.symbol_slot.get());
  json["values"] = Json::array();
  for (const auto& value : renderer.unique_values) {
    json["values"].push_back({{"value", utf8(value->wstr)},
                              {"int1", value->int1},
                              {"int2", value->int2},
                              {"int3", value->int3}});
  }
  json["legend"] = legend_group_json(renderer.main_leg_grp);
  json["other_legend"] = legend_group_json(renderer.other_leg_grp);
}

void add_class_breaks(Json& json, const Tmxd_class_breaks_renderer& renderer) {
  json["ranges"] = Json::array();
  for (std::int32_t i = 0; i < renderer.ranges.size(); ++i) {
    json["ranges"].push_back(
        {{"min", renderer.ranges.min_bnd(i)}, {"max", renderer.ranges.max_bnd(i)}});
  }
  json["legend"] = legend_group_json(renderer.main_leg_grp);
}

Json renderer_json(const Tmxd_renderer* renderer) {
  if (!renderer) return nullptr;
  Json json = {{"kind", renderer_kind(*renderer)},
               {"class", renderer->type_name()},
               {"fields", renderer_fields(*renderer)}};
  if (const auto* simple = dynamic_cast<const Tmxd_simple_renderer*>(renderer)) {
    json["symbol"] = symbol_json(simple->symbol_slot.get());
    json["legend"] = legend_group_json(simple->legend_group);
  } else if (const auto* unique = dynamic_cast<const Tmxd_unique_value_renderer*>(renderer)) {
    add_unique_values(json, *unique);
  } else if (const auto* breaks = dynamic_cast<const Tmxd_class_breaks_renderer*>(renderer)) {
    add_class_breaks(json, *breaks);
  }
  return json;
}

void add_feature(Json& json, const Tmxd_feature_layer& layer) {
  json["feature_class"] = feature_class_json(layer.feature_class_name.get());
  json["workspace"] = utf8(layer.workspace_name.name);
  json["coordinate_system"] = coordinate_system_json(layer.coordinate_system.get());
  json["renderer"] = renderer_json(layer.renderer.get());
}

// What is left of a map or a layer that stands for an earlier one.
void add_reference(Json& json, const Tmxd_obj& object, const Names_by_number& names) {
  const auto name = names.name_of(object);
  json["repeats"] = name ? Json(*name) : Json(nullptr);
}

Json layer_json(const Layer_place& place, Names_by_number& names) {
  const Tmxd_layer& layer = *place.layer;
  Json groups = Json::array();
  for (const auto* group : place.groups) groups.push_back(utf8(group->layer_name));
  Json json = {{"kind", kind_of(layer)},
               {"class", layer.type_name()},
               {"number", layer.number},
               {"version", layer.version},
               {"groups", std::move(groups)}};
  if (layer.repeat) {
    add_reference(json, layer, names);
    return json;
  }
  names.add(layer, layer.layer_name);
  const auto shown = visible(layer);
  json["name"] = utf8(layer.layer_name);
  json["type_name"] = utf8(layer.layer_type_name);
  json["visible"] = shown ? Json(*shown) : Json(nullptr);
  json["min_scale"] = layer.min_scale;
  json["max_scale"] = layer.max_scale;
  if (const auto* group = dynamic_cast<const Tmxd_group_layer*>(&layer)) {
    json["layer_count"] = group->layer_count;
  } else if (const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer)) {
    add_feature(json, *feature);
  } else if (const auto* raster = dynamic_cast<const Tmxd_raster_layer*>(&layer)) {
    json["raster_dataset"] = raster_dataset_json(raster->raster_dataset_name.get());
    json["workspace"] = utf8(raster->workspace_name.name);
  }
  return json;
}

Json map_json(const Tmxd_map& map, Names_by_number& names) {
  Json json = {{"number", map.number}, {"version", map.version}};
  if (map.repeat) {
    add_reference(json, map, names);
    return json;
  }
  names.add(map, map.name);
  json["name"] = utf8(map.name);
  json["coordinate_system"] = coordinate_system_json(map.coordinate_system.get());
  json["layers"] = Json::array();
  for (const Layer_place& place : placed_layers(map)) {
    json["layers"].push_back(layer_json(place, names));
  }
  return json;
}

Json document_json(const Report& report) {
  Json json = {{"schema_version", schema_version},
               {"tool", {{"name", "mxdinfo"}, {"version", MXDINFO_VERSION}}},
               {"file", {{"path", report.name}, {"size", report.size}}},
               {"readable", report.failure.empty()},
               {"reason", text_or_null(report.failure)},
               {"maps", Json::array()},
               {"errors", Json::array()}};
  Names_by_number names;
  for (const auto& map : report.content.maps) json["maps"].push_back(map_json(*map, names));
  for (const Decode_error& error : report.errors) {
    json["errors"].push_back(
        {{"number", error.number}, {"type", error.type}, {"position", error.position}});
  }
  return json;
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
