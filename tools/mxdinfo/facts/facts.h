// What the outputs tell of layers, in the words that people use.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/mxd.h"
#include "rendering/legend.h"
#include "rendering/renderer.h"
#include "symbology/color.h"

namespace mxdinfo {

// A layer of a map's flat list, under its groups.
struct Layer_place {
  const mxd::Tmxd_layer* layer;
  // The outermost first; groups nested deeper than anybody can show are left out.
  std::vector<const mxd::Tmxd_group_layer*> groups;
};

// A group says how many layers follow as its members; damaged documents have fewer.
std::vector<Layer_place> placed_layers(const mxd::Tmxd_map& map);

// "group", "feature", "raster" or "graphics".
std::string kind_of(const mxd::Tmxd_layer& layer);

// Nothing for the kinds of layers that store no visibility.
std::optional<bool> visible(const mxd::Tmxd_layer& layer);

// "Roads / Motorways": the groups, without the layer itself.
std::string group_path(const Layer_place& place);

// Empty where every scale shows the layer.
std::string scales_text(const mxd::Tmxd_layer& layer);

struct Source {
  std::string dataset;
  std::string feature_dataset;
  std::string type;
  std::string workspace;

  bool empty() const { return dataset.empty() && workspace.empty(); }
  // "towns (File Geodatabase Feature Class) in C:\data\town.gdb"
  std::string text() const;
  // Whether the path of the data, its workspace or its dataset contains the folded text.
  bool contains(std::string_view wanted) const;
};
Source source_of(const mxd::Tmxd_layer& layer);

// "point", "polygon"; empty where the document says nothing that is known.
std::string geometry_of(const mxd::Tmxd_layer& layer);
std::string geometry_name(std::int32_t type);

const mxd::Tmxd_coordinate_system* coordinate_system_of(const mxd::Tmxd_layer& layer);
std::string coordinate_system_name(const mxd::Tmxd_coordinate_system& system);
// Well-known text, or what an unknown coordinate system has in its place.
std::string coordinate_system_text(const mxd::Tmxd_coordinate_system& system);
// Nothing where the text states no EPSG code for the whole system.
std::optional<int> epsg_code(const mxd::Tmxd_coordinate_system& system);

// Null where the layer has none.
const mxd::Tmxd_renderer* renderer_of(const mxd::Tmxd_layer& layer);
// "simple", "unique_values", "class_breaks"
std::string renderer_kind(const mxd::Tmxd_renderer& renderer);
std::vector<std::string> renderer_fields(const mxd::Tmxd_renderer& renderer);
// "one symbol", "by values of KIND, PORT"
std::string drawn_text(const mxd::Tmxd_renderer& renderer);
// In the order in which a table of contents shows them.
std::vector<const mxd::Tmxd_legend_group*> legend_groups(const mxd::Tmxd_renderer& renderer);
std::size_t legend_class_count(const mxd::Tmxd_layer& layer);

// "simple fill symbol", "no symbol"
std::string symbol_kind(const mxd::Tmxd_symbol* symbol);

// "#rrggbb", also of a color that is switched off.
std::string color_hex(const mxd::Tmxd_color& color);
// The color that is drawn with; nothing where there is none or it is switched off.
std::optional<std::string> drawn_color(const mxd::Tmxd_color_slot& slot);
// The color that the eye takes for the symbol's.
std::optional<std::string> main_color(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
