// Facts about layers in human-readable form, shared by all output formats.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/mxd.h"
#include "outline/feature_facts.h"
#include "rendering/legend.h"
#include "rendering/renderer.h"
#include "symbology/color.h"

namespace mxdinfo {

// Nothing for kinds of layers that store no visibility.
std::optional<bool> visible(const mxd::Tmxd_layer& layer);

// Empty if the layer is shown at all scales, or a scale is impossible.
std::string scales_text(const mxd::Tmxd_layer& layer);

struct Source {
  std::string dataset;
  std::string feature_dataset;
  std::string type;
  std::string workspace;

  bool empty() const { return dataset.empty() && workspace.empty(); }
  // "towns (File Geodatabase Feature Class) in C:\data\town.gdb"
  std::string text() const;
  // Whether the path of the data contains the text, which must be in lower case.
  bool contains(std::string_view wanted) const;
};
Source source_of(const mxd::Tmxd_layer& layer);

// The field that names a feature; empty if the layer has none.
std::string display_field_of(const mxd::Tmxd_layer& layer);

// "point", "polygon"; empty if it is unknown.
std::string geometry_of(const mxd::Tmxd_layer& layer);
std::string geometry_name(std::int32_t type);

const mxd::Tmxd_coordinate_system* coordinate_system_of(const mxd::Tmxd_layer& layer);
std::string coordinate_system_name(const mxd::Tmxd_coordinate_system& system);
// Well-known text, or the text that an unknown coordinate system has instead.
std::string coordinate_system_text(const mxd::Tmxd_coordinate_system& system);

// Null if the layer has none or its symbol could not be read.
const mxd::Tmxd_renderer* renderer_of(const mxd::Tmxd_layer& layer);
// Whether the layer must have a renderer, and none could be read.
bool has_unknown_renderer(const mxd::Tmxd_layer& layer);
enum class Renderer_kind { simple, unique_values, class_breaks };
Renderer_kind kind_of(const mxd::Tmxd_renderer& renderer);
// "simple", "unique_values", "class_breaks"
std::string renderer_kind(const mxd::Tmxd_renderer& renderer);
std::vector<std::string> renderer_fields(const mxd::Tmxd_renderer& renderer);
// "one symbol", "by values of KIND, PORT", "by ranges of POP divided by AREA", "not known"; empty
// for kinds of layers that have no renderer.
std::string drawn_text(const mxd::Tmxd_layer& layer, const mxd::Feature_facts& facts);
// In the order of a table of contents.
std::vector<const mxd::Tmxd_legend_group*> legend_groups(const mxd::Tmxd_renderer& renderer);
std::size_t legend_class_count(const mxd::Tmxd_layer& layer);

// Symbols nested more deeply are not drawn, and their colors and fonts do not count.
constexpr int max_symbol_depth = 8;

enum class Symbol_family { marker, line, fill };
Symbol_family family_of(const mxd::Tmxd_symbol& symbol);
// "simple fill symbol", "no symbol"
std::string symbol_kind(const mxd::Tmxd_symbol* symbol);

// "#rrggbb", also of a color that is switched off.
std::string color_hex(const mxd::Tmxd_color& color);
std::string color_hex(const mxd::Label_class::Rgb& color);
// Nothing if there is no color or it is switched off.
std::optional<std::string> drawn_color(const mxd::Tmxd_color_slot& slot);
// The symbol's dominant color.
std::optional<std::string> main_color(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
