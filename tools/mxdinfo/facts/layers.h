// The layers of a map as the outputs list them: decoded, failed and unknown ones.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "outline/outline.h"

namespace mxdinfo {

// A layer at its place in the tree of a map's layers.
struct Listed_layer {
  const mxd::Map_outline* map = nullptr;
  // Of its record in the map.
  std::size_t index = 0;
  // How many layers contain it.
  std::size_t depth = 0;

  const mxd::Layer_record& record() const { return map->records[index]; }
  // Null if it was not decoded.
  const mxd::Tmxd_layer* layer() const { return record().layer; }
};

// In stream order: a layer comes before its members. References to layers that are stored elsewhere
// are left out.
std::vector<Listed_layer> listed_layers(const mxd::Map_outline& map);

std::string name_of(const mxd::Map_outline& map);
std::string name_of(const mxd::Layer_record& record);
// "Roads / Motorways": the layers that contain it, the outermost first, their names shortened.
std::string group_path(const Listed_layer& layer);
// "Roads / Motorways / Tunnels": the groups and the layer.
std::string path_in_map(const Listed_layer& layer);
// "Layers / Roads / Motorways / Tunnels": the map, the groups and the layer.
std::string full_name(const Listed_layer& layer);

// "group", "feature", "basemap", "unknown"
std::string kind_word(mxd::Layer_kind kind);
// "group of 3", "feature layer", "layer of an unknown kind, class ...; not decoded, 512 bytes"
std::string kind_text(const mxd::Layer_record& record);

// "[NAME], Arial 8 pt, #000000"; empty if the layer shows no labels.
std::string labels_text(const mxd::Layer_record& record);
// The well-known text's name, and "(EPSG 4326)" where the text states the code.
std::string coordinate_system_text_line(const mxd::Tmxd_coordinate_system& system);
// Whether a layer's coordinate system is another one than its map's; nothing if either has none or
// an unknown one.
std::optional<bool> differs_from_map(const Listed_layer& layer);
// The same line for a layer's system, with a note if it differs from the map's; empty if the layer
// has none.
std::string coordinate_system_text_line(const Listed_layer& layer);
std::string extent_text(const mxd::Extent& extent);

// Whether the document can mean the number as the denominator of a scale. 0 is none.
bool is_possible_scale(double denominator);

}  // namespace mxdinfo
