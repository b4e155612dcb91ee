#include "tree_walk.h"

#include <bit>
#include <concepts>
#include <string_view>
#include <type_traits>

#include "storage/text.h"

namespace mxd::fuzz {
namespace {

// Adds up what all getters answer, so that every byte that a host may look at is looked at.
class Walk {
 public:
  std::uint64_t sum() const { return sum_; }

  void look(std::integral auto value) { sum_ += static_cast<std::uint64_t>(value); }
  void look(double value) { sum_ += std::bit_cast<std::uint64_t>(value); }
  void look(const char* text) { sum_ += std::string_view(text).size(); }
  void look(const vq_mxd_char* text) { sum_ += Wide_view(text).size(); }

  void look(const vq_mxd_maps* it) { items(it, vq_mxd_maps_get_size, vq_mxd_maps_get); }

  void look(const vq_mxd_map* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_map_get_name, vq_mxd_map_get_layers, vq_mxd_map_get_coordinate_system);
  }

  void look(const vq_mxd_coordinate_system* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_coordinate_system_get_wkt);
  }

  void look(const vq_mxd_layers* it) { items(it, vq_mxd_layers_get_size, vq_mxd_layers_get); }

  void look(const vq_mxd_layer* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_layer_cast_group_layer, vq_mxd_layer_cast_feature_layer,
         vq_mxd_layer_get_layer_name, vq_mxd_layer_get_layer_type_name, vq_mxd_layer_get_visible,
         vq_mxd_layer_get_min_scale, vq_mxd_layer_get_max_scale);
  }

  void look(const vq_mxd_group_layer* it) { each(it, vq_mxd_group_layer_get_layer_count); }

  void look(const vq_mxd_feature_layer* it) {
    each(it, vq_mxd_feature_layer_get_basic_feature_class_name,
         vq_mxd_feature_layer_get_workspace_name, vq_mxd_feature_layer_get_renderer,
         vq_mxd_feature_layer_get_coordinate_system);
  }

  void look(const vq_mxd_basic_feature_class_name* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_basic_feature_class_name_get_name,
         vq_mxd_basic_feature_class_name_get_type_name1,
         vq_mxd_basic_feature_class_name_get_type_name2,
         vq_mxd_basic_feature_class_name_get_geom_type);
  }

  void look(const vq_mxd_workspace_name* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_workspace_name_get_name);
  }

  void look(const vq_mxd_renderer* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_renderer_cast_simple_renderer, vq_mxd_renderer_cast_unique_value_renderer,
         vq_mxd_renderer_cast_class_breaks_renderer);
  }

  void look(const vq_mxd_simple_renderer* it) {
    each(it, vq_mxd_simple_renderer_get_symbol, vq_mxd_simple_renderer_get_legend_group);
  }

  void look(const vq_mxd_unique_value_renderer* it) {
    each(it, vq_mxd_unique_value_renderer_get_propname_count,
         vq_mxd_unique_value_renderer_get_propname1, vq_mxd_unique_value_renderer_get_propname2,
         vq_mxd_unique_value_renderer_get_propname3, vq_mxd_unique_value_renderer_get_symbol,
         vq_mxd_unique_value_renderer_get_other_leg_grp,
         vq_mxd_unique_value_renderer_get_main_leg_grp,
         vq_mxd_unique_value_renderer_get_unique_values);
  }

  void look(const vq_mxd_unique_values* it) {
    items(it, vq_mxd_unique_values_get_size, vq_mxd_unique_values_get);
  }

  void look(const vq_mxd_unique_value* it) {
    each(it, vq_mxd_unique_value_get_str, vq_mxd_unique_value_get_int1,
         vq_mxd_unique_value_get_int2, vq_mxd_unique_value_get_int3);
  }

  void look(const vq_mxd_class_breaks_renderer* it) {
    each(it, vq_mxd_class_breaks_renderer_get_propname, vq_mxd_class_breaks_renderer_get_ranges,
         vq_mxd_class_breaks_renderer_get_main_leg_grp);
  }

  void look(const vq_mxd_ranges* it) {
    items(it, vq_mxd_ranges_get_size, vq_mxd_ranges_get_min_bnd);
    items(it, vq_mxd_ranges_get_size, vq_mxd_ranges_get_max_bnd);
  }

  void look(const vq_mxd_legend_group* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_legend_group_get_label);
    items(it, vq_mxd_legend_group_get_size, vq_mxd_legend_group_get);
  }

  void look(const vq_mxd_legend_class* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_legend_class_get_label, vq_mxd_legend_class_get_symbol);
  }

  void look(const vq_mxd_symbol* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_symbol_cast_char_marker, vq_mxd_symbol_cast_multilayer_marker,
         vq_mxd_symbol_cast_simple_marker, vq_mxd_symbol_cast_cartographic_line,
         vq_mxd_symbol_cast_hash_line, vq_mxd_symbol_cast_marker_line,
         vq_mxd_symbol_cast_multilayer_line, vq_mxd_symbol_cast_simple_line,
         vq_mxd_symbol_cast_line_fill, vq_mxd_symbol_cast_marker_fill,
         vq_mxd_symbol_cast_multilayer_fill, vq_mxd_symbol_cast_simple_fill,
         vq_mxd_symbol_get_enabled, vq_mxd_symbol_get_locked, vq_mxd_symbol_get_tag);
  }

  void look(const vq_mxd_color* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_color_get_dither_flag, vq_mxd_color_get_no_use_flag);
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    look(vq_mxd_color_get_rgb(it, &red, &green, &blue));
    look(red + green + blue);
  }

  void look(const vq_mxd_font* it) {
    each(it, vq_mxd_font_get_font_name, vq_mxd_font_get_size, vq_mxd_font_get_weight,
         vq_mxd_font_get_charset, vq_mxd_font_get_italic, vq_mxd_font_get_underline,
         vq_mxd_font_get_strikethrough);
  }

  void look(const vq_mxd_char_marker_symbol* it) {
    each(it, vq_mxd_char_marker_symbol_get_unicode, vq_mxd_char_marker_symbol_get_angle,
         vq_mxd_char_marker_symbol_get_x_offset, vq_mxd_char_marker_symbol_get_y_offset,
         vq_mxd_char_marker_symbol_get_color, vq_mxd_char_marker_symbol_get_font_name,
         vq_mxd_char_marker_symbol_get_font);
  }

  void look(const vq_mxd_simple_marker_symbol* it) {
    each(it, vq_mxd_simple_marker_symbol_get_simple_marker_style,
         vq_mxd_simple_marker_symbol_get_angle, vq_mxd_simple_marker_symbol_get_x_offset,
         vq_mxd_simple_marker_symbol_get_y_offset, vq_mxd_simple_marker_symbol_get_color,
         vq_mxd_simple_marker_symbol_get_outline_flag,
         vq_mxd_simple_marker_symbol_get_outline_width,
         vq_mxd_simple_marker_symbol_get_outline_color);
  }

  void look(const vq_mxd_multilayer_marker_symbol* it) {
    each(it, vq_mxd_multilayer_marker_symbol_get_marker_symbols);
  }

  void look(const vq_mxd_marker_symbols* it) {
    items(it, vq_mxd_marker_symbols_get_size, vq_mxd_marker_symbols_get);
  }

  void look(const vq_mxd_line_template* it) {
    if (it == nullptr) return;
    header(VQ_MXD_OBJ(it));
    each(it, vq_mxd_line_template_get_pattern_interval);
    items(it, vq_mxd_line_template_get_size, vq_mxd_line_template_get);
  }

  void look(const vq_mxd_line_template_item* it) {
    each(it, vq_mxd_line_template_item_get_filled_squares,
         vq_mxd_line_template_item_get_empty_squares);
  }

  void look(const vq_mxd_simple_line_symbol* it) {
    each(it, vq_mxd_simple_line_symbol_get_color, vq_mxd_simple_line_symbol_get_width,
         vq_mxd_simple_line_symbol_get_simple_line_style);
  }

  void look(const vq_mxd_cartographic_line_symbol* it) {
    each(it, vq_mxd_cartographic_line_symbol_get_color, vq_mxd_cartographic_line_symbol_get_width,
         vq_mxd_cartographic_line_symbol_get_offset,
         vq_mxd_cartographic_line_symbol_get_line_template);
  }

  void look(const vq_mxd_hash_line_symbol* it) {
    each(it, vq_mxd_hash_line_symbol_get_color, vq_mxd_hash_line_symbol_get_width,
         vq_mxd_hash_line_symbol_get_angle, vq_mxd_hash_line_symbol_get_offset,
         vq_mxd_hash_line_symbol_get_line, vq_mxd_hash_line_symbol_get_line_template);
  }

  void look(const vq_mxd_marker_line_symbol* it) {
    each(it, vq_mxd_marker_line_symbol_get_offset, vq_mxd_marker_line_symbol_get_pattern_marker,
         vq_mxd_marker_line_symbol_get_line_template);
  }

  void look(const vq_mxd_multilayer_line_symbol* it) {
    each(it, vq_mxd_multilayer_line_symbol_get_line_symbols);
  }

  void look(const vq_mxd_line_symbols* it) {
    items(it, vq_mxd_line_symbols_get_size, vq_mxd_line_symbols_get);
  }

  void look(const vq_mxd_simple_fill_symbol* it) {
    each(it, vq_mxd_simple_fill_symbol_get_color, vq_mxd_simple_fill_symbol_get_outline);
  }

  void look(const vq_mxd_line_fill_symbol* it) {
    each(it, vq_mxd_line_fill_symbol_get_pattern, vq_mxd_line_fill_symbol_get_outline,
         vq_mxd_line_fill_symbol_get_angle, vq_mxd_line_fill_symbol_get_offset,
         vq_mxd_line_fill_symbol_get_separation);
  }

  void look(const vq_mxd_marker_fill_symbol* it) {
    each(it, vq_mxd_marker_fill_symbol_get_marker, vq_mxd_marker_fill_symbol_get_outline,
         vq_mxd_marker_fill_symbol_get_offset_x, vq_mxd_marker_fill_symbol_get_offset_y,
         vq_mxd_marker_fill_symbol_get_separation_x, vq_mxd_marker_fill_symbol_get_separation_y,
         vq_mxd_marker_fill_symbol_get_random);
  }

  void look(const vq_mxd_multilayer_fill_symbol* it) {
    each(it, vq_mxd_multilayer_fill_symbol_get_fill_symbols);
  }

  void look(const vq_mxd_fill_symbols* it) {
    items(it, vq_mxd_fill_symbols_get_size, vq_mxd_fill_symbols_get);
  }

 private:
  void header(const vq_mxd_obj* it) {
    each(it, vq_mxd_obj_get_exists, vq_mxd_obj_get_repeat, vq_mxd_obj_get_number,
         vq_mxd_obj_get_type_str);
  }

  template <class Handle, class... Getter>
  void each(const Handle* it, Getter... get) {
    if (it != nullptr) (look(get(it)), ...);
  }

  // Lists may be asked for one item too many, but for that of the maps.
  template <class List, class Size, class Get>
  void items(const List* list, Size size, Get get) {
    const auto count = static_cast<std::int32_t>(size(list));
    const std::int32_t outside = std::is_same_v<List, vq_mxd_maps> ? 0 : 1;
    for (std::int32_t i = 0; i < count + outside; ++i) look(get(list, i));
  }

  std::uint64_t sum_ = 0;
};

}  // namespace

std::uint64_t walk_tree(const vq_mxd_mxd* document) {
  Walk walk;
  walk.look(vq_mxd_mxd_get_maps(document));
  return walk.sum();
}

}  // namespace mxd::fuzz
