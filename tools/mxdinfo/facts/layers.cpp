#include "mxdinfo/facts/layers.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "outline/epsg_code.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// Deeper paths are cut at the outer end.
constexpr std::size_t max_path_length = 40;

std::string label_text(const Label_class& label) {
  std::string text = utf8(label.expression);
  if (label.font)
    text += fmt::format(", {} {:.6g} pt", utf8(label.font->name), label.font->size_in_points);
  if (label.color) {
    text += ", " + color_hex(*label.color);
  }
  return text;
}

}  // namespace

std::vector<Listed_layer> listed_layers(const Map_outline& map) {
  std::vector<Listed_layer> layers;
  std::vector<std::size_t> depths;
  for (std::size_t i = 0; i < map.records.size(); ++i) {
    const auto parent = map.records[i].parent;
    depths.push_back(parent ? depths[*parent] + 1 : 0);
    if (!map.records[i].is_reference) layers.push_back({&map, i, depths.back()});
  }
  return layers;
}

std::string name_of(const Map_outline& map) {
  return utf8(map.map->name);
}

std::string name_of(const Layer_record& record) {
  return utf8(record.layer ? record.layer->layer_name : record.name);
}

std::string group_path(const Listed_layer& layer) {
  std::vector<std::string> names;
  auto parent = layer.record().parent;
  for (; parent && names.size() < max_path_length; parent = layer.map->records[*parent].parent) {
    names.push_back(shortened(name_of(layer.map->records[*parent])));
  }
  if (parent) names.push_back("…");
  std::reverse(names.begin(), names.end());
  return fmt::format("{}", fmt::join(names, " / "));
}

std::string path_in_map(const Listed_layer& layer) {
  std::string path = group_path(layer);
  if (!path.empty()) path += " / ";
  return path + name_of(layer.record());
}

std::string full_name(const Listed_layer& layer) {
  return shortened(name_of(*layer.map)) + " / " + path_in_map(layer);
}

std::string kind_word(Layer_kind kind) {
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

std::string kind_text(const Layer_record& record) {
  if (!record.layer) {
    const std::string size = record.length == 0 ? "" : fmt::format(", {} bytes", record.length);
    const char* problem = record.read_failed() ? "could not be read" : "not decoded";
    return fmt::format("{}; {}{}", kind_in_words(record.class_id), problem, size);
  }
  return visit(
      *record.layer,
      Overloaded{[](const Tmxd_group_layer& group) {
                   return fmt::format("group of {}", group.layer_count);
                 },
                 [](const Tmxd_feature_layer&) { return std::string("feature layer"); },
                 [](const Tmxd_raster_layer&) { return std::string("raster layer"); },
                 [](const Tmxd_fdo_graphics_layer&) { return std::string("graphics layer"); }});
}

std::string labels_text(const Layer_record& record) {
  if (!record.facts.labels || !record.facts.labels->shown) return {};
  std::string text;
  for (const Label_class& label : record.facts.labels->classes) {
    if (!text.empty()) text += "; ";
    text += label_text(label);
  }
  return text.empty() ? "shown" : text;
}

std::string coordinate_system_text_line(const Tmxd_coordinate_system& system) {
  const auto code = epsg_code(system.get_wkt());
  const std::string name = coordinate_system_name(system);
  return code ? fmt::format("{} (EPSG {})", name, *code) : name;
}

std::optional<bool> differs_from_map(const Listed_layer& layer) {
  const auto* map_system = layer.map->map->coordinate_system.get();
  const auto* system = layer.layer() ? coordinate_system_of(*layer.layer()) : nullptr;
  if (!system || !map_system) return std::nullopt;
  const std::string_view wkt = system->get_wkt();
  const std::string_view map_wkt = map_system->get_wkt();
  if (wkt.empty() || map_wkt.empty()) return std::nullopt;
  const auto code = epsg_code(wkt);
  const auto map_code = epsg_code(map_wkt);
  return code && map_code ? code != map_code : wkt != map_wkt;
}

std::string coordinate_system_text_line(const Listed_layer& layer) {
  const auto* system = layer.layer() ? coordinate_system_of(*layer.layer()) : nullptr;
  if (!system) return {};
  const char* note = differs_from_map(layer).value_or(false) ? ", not the map's" : "";
  return coordinate_system_text_line(*system) + note;
}

std::string extent_text(const Extent& extent) {
  return fmt::format("{:.10g}, {:.10g} to {:.10g}, {:.10g}", extent.xmin, extent.ymin, extent.xmax,
                     extent.ymax);
}

bool is_possible_scale(double denominator) {
  constexpr double max_denominator = 1e12;
  return denominator >= 0 && denominator <= max_denominator;
}

}  // namespace mxdinfo
