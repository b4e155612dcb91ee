#include "walk.h"

#include <stddef.h>

typedef struct walk {
  walk_listener tell;
  void* context;
  int depth;
} walk;

static void tell(const walk* w, const char* getter, double number, const char* text,
                 const vq_mxd_char* units) {
  const walk_answer answer = {w->depth, getter, number, text, units};
  w->tell(w->context, &answer);
}

#define NUMBER(type, name) tell(w, #name, (double)vq_mxd_##type##_get_##name(it), NULL, NULL)
#define TEXT(type, name) tell(w, #name, 0, vq_mxd_##type##_get_##name(it), NULL)
#define UNITS(type, name) tell(w, #name, 0, NULL, vq_mxd_##type##_get_##name(it))

#define NUMBERS2(type, a, b) NUMBER(type, a), NUMBER(type, b)
#define NUMBERS3(type, a, b, c) NUMBERS2(type, a, b), NUMBER(type, c)
#define NUMBERS4(type, a, b, c, d) NUMBERS3(type, a, b, c), NUMBER(type, d)
#define UNITS2(type, a, b) UNITS(type, a), UNITS(type, b)
#define UNITS3(type, a, b, c) UNITS2(type, a, b), UNITS(type, c)

#define BELOW(name, kind, handle)             \
  do {                                        \
    const vq_mxd_##kind* below = handle;      \
    tell(w, name, below != NULL, NULL, NULL); \
    ++w->depth;                               \
    if (below != NULL) walk_##kind(w, below); \
    --w->depth;                               \
  } while (0)

#define PART(type, name, kind) BELOW(#name, kind, vq_mxd_##type##_get_##name(it))

#define CAST(type, name, kind)                                     \
  do {                                                             \
    if (vq_mxd_##type##_cast_##name(it) != NULL)                   \
      BELOW("cast_" #name, kind, vq_mxd_##type##_cast_##name(it)); \
  } while (0)

/* Lists may be asked for an item before and behind theirs, but for that of the maps, and for that
   of the line symbols before its first. */
#define ITEMS(list, kind, first, behind)                                                      \
  do {                                                                                        \
    const int32_t count = (int32_t)vq_mxd_##list##_get_size(it);                              \
    int32_t i;                                                                                \
    NUMBER(list, size);                                                                       \
    for (i = first; i < count + behind; ++i) BELOW("item", kind, vq_mxd_##list##_get(it, i)); \
  } while (0)

#define WALK(kind) static void walk_##kind(walk* w, const vq_mxd_##kind* it)

WALK(obj) {
  TEXT(obj, type_str);
  NUMBERS3(obj, exists, repeat, number);
}

#define HEADER() walk_obj(w, VQ_MXD_OBJ(it))

WALK(coordinate_system) {
  HEADER();
  TEXT(coordinate_system, wkt);
}

WALK(basic_feature_class_name) {
  HEADER();
  UNITS3(basic_feature_class_name, name, type_name1, type_name2);
  NUMBER(basic_feature_class_name, geom_type);
}

WALK(workspace_name) {
  HEADER();
  UNITS(workspace_name, name);
}

/* ---- Symbols ---- */

WALK(symbol);

WALK(color) {
  uint8_t red = 0, green = 0, blue = 0;
  HEADER();
  NUMBERS2(color, dither_flag, no_use_flag);
  tell(w, "rgb", vq_mxd_color_get_rgb(it, &red, &green, &blue), NULL, NULL);
  tell(w, "red", red, NULL, NULL);
  tell(w, "green", green, NULL, NULL);
  tell(w, "blue", blue, NULL, NULL);
}

WALK(font) {
  TEXT(font, font_name);
  NUMBERS4(font, size, weight, charset, italic);
  NUMBERS2(font, underline, strikethrough);
}

WALK(line_template_item) {
  NUMBERS2(line_template_item, filled_squares, empty_squares);
}

WALK(line_template) {
  HEADER();
  NUMBER(line_template, pattern_interval);
  ITEMS(line_template, line_template_item, -1, 1);
}

WALK(marker_symbols) {
  ITEMS(marker_symbols, symbol, -1, 1);
}
WALK(line_symbols) {
  ITEMS(line_symbols, symbol, 0, 1);
}
WALK(fill_symbols) {
  ITEMS(fill_symbols, symbol, -1, 1);
}

WALK(simple_marker_symbol) {
  NUMBERS4(simple_marker_symbol, simple_marker_style, size, angle, x_offset);
  NUMBER(simple_marker_symbol, y_offset);
  PART(simple_marker_symbol, color, color);
  NUMBERS2(simple_marker_symbol, outline_flag, outline_width);
  PART(simple_marker_symbol, outline_color, color);
}

WALK(char_marker_symbol) {
  NUMBERS4(char_marker_symbol, unicode, size, angle, x_offset);
  NUMBER(char_marker_symbol, y_offset);
  PART(char_marker_symbol, color, color);
  UNITS(char_marker_symbol, font_name);
  PART(char_marker_symbol, font, font);
}

WALK(multilayer_marker_symbol) {
  PART(multilayer_marker_symbol, marker_symbols, marker_symbols);
}

WALK(simple_line_symbol) {
  PART(simple_line_symbol, color, color);
  NUMBERS2(simple_line_symbol, width, simple_line_style);
}

WALK(cartographic_line_symbol) {
  PART(cartographic_line_symbol, color, color);
  NUMBERS2(cartographic_line_symbol, width, offset);
  PART(cartographic_line_symbol, line_template, line_template);
}

WALK(hash_line_symbol) {
  PART(hash_line_symbol, color, color);
  NUMBERS3(hash_line_symbol, width, angle, offset);
  PART(hash_line_symbol, line, symbol);
  PART(hash_line_symbol, line_template, line_template);
}

WALK(marker_line_symbol) {
  NUMBER(marker_line_symbol, offset);
  PART(marker_line_symbol, pattern_marker, symbol);
  PART(marker_line_symbol, line_template, line_template);
}

WALK(multilayer_line_symbol) {
  PART(multilayer_line_symbol, line_symbols, line_symbols);
}

WALK(simple_fill_symbol) {
  PART(simple_fill_symbol, color, color);
  PART(simple_fill_symbol, outline, symbol);
}

WALK(line_fill_symbol) {
  PART(line_fill_symbol, pattern, symbol);
  PART(line_fill_symbol, outline, symbol);
  NUMBERS3(line_fill_symbol, angle, offset, separation);
}

WALK(marker_fill_symbol) {
  PART(marker_fill_symbol, marker, symbol);
  PART(marker_fill_symbol, outline, symbol);
  NUMBERS4(marker_fill_symbol, offset_x, offset_y, separation_x, separation_y);
  NUMBER(marker_fill_symbol, random);
}

WALK(multilayer_fill_symbol) {
  PART(multilayer_fill_symbol, fill_symbols, fill_symbols);
}

static void cast_symbol(walk* w, const vq_mxd_symbol* it) {
  CAST(symbol, char_marker, char_marker_symbol);
  CAST(symbol, simple_marker, simple_marker_symbol);
  CAST(symbol, multilayer_marker, multilayer_marker_symbol);
  CAST(symbol, simple_line, simple_line_symbol);
  CAST(symbol, cartographic_line, cartographic_line_symbol);
  CAST(symbol, hash_line, hash_line_symbol);
  CAST(symbol, marker_line, marker_line_symbol);
  CAST(symbol, multilayer_line, multilayer_line_symbol);
  CAST(symbol, simple_fill, simple_fill_symbol);
  CAST(symbol, line_fill, line_fill_symbol);
  CAST(symbol, marker_fill, marker_fill_symbol);
  CAST(symbol, multilayer_fill, multilayer_fill_symbol);
}

WALK(symbol) {
  HEADER();
  NUMBERS2(symbol, enabled, locked);
  UNITS(symbol, tag);
  cast_symbol(w, it);
}

/* ---- Renderers ---- */

WALK(legend_class) {
  HEADER();
  UNITS(legend_class, label);
  PART(legend_class, symbol, symbol);
}

WALK(legend_group) {
  HEADER();
  UNITS(legend_group, label);
  ITEMS(legend_group, legend_class, -1, 1);
}

WALK(unique_value) {
  UNITS(unique_value, str);
  NUMBERS3(unique_value, int1, int2, int3);
}

WALK(unique_values) {
  ITEMS(unique_values, unique_value, -1, 1);
}

WALK(ranges) {
  int32_t i;
  NUMBER(ranges, size);
  for (i = -1; i <= vq_mxd_ranges_get_size(it); ++i) {
    tell(w, "min_bnd", vq_mxd_ranges_get_min_bnd(it, i), NULL, NULL);
    tell(w, "max_bnd", vq_mxd_ranges_get_max_bnd(it, i), NULL, NULL);
  }
}

WALK(simple_renderer) {
  PART(simple_renderer, symbol, symbol);
  PART(simple_renderer, legend_group, legend_group);
}

WALK(unique_value_renderer) {
  NUMBER(unique_value_renderer, propname_count);
  UNITS3(unique_value_renderer, propname1, propname2, propname3);
  PART(unique_value_renderer, symbol, symbol);
  PART(unique_value_renderer, other_leg_grp, legend_group);
  PART(unique_value_renderer, main_leg_grp, legend_group);
  PART(unique_value_renderer, unique_values, unique_values);
}

WALK(class_breaks_renderer) {
  UNITS(class_breaks_renderer, propname);
  PART(class_breaks_renderer, ranges, ranges);
  PART(class_breaks_renderer, main_leg_grp, legend_group);
}

static void cast_renderer(walk* w, const vq_mxd_renderer* it) {
  CAST(renderer, simple_renderer, simple_renderer);
  CAST(renderer, unique_value_renderer, unique_value_renderer);
  CAST(renderer, class_breaks_renderer, class_breaks_renderer);
}

WALK(renderer) {
  HEADER();
  cast_renderer(w, it);
}

/* ---- Maps ---- */

WALK(group_layer) {
  NUMBER(group_layer, layer_count);
}

WALK(feature_layer) {
  PART(feature_layer, basic_feature_class_name, basic_feature_class_name);
  PART(feature_layer, workspace_name, workspace_name);
  PART(feature_layer, renderer, renderer);
  PART(feature_layer, coordinate_system, coordinate_system);
}

static void cast_layer(walk* w, const vq_mxd_layer* it) {
  CAST(layer, group_layer, group_layer);
  CAST(layer, feature_layer, feature_layer);
}

WALK(layer) {
  HEADER();
  UNITS2(layer, layer_name, layer_type_name);
  NUMBERS3(layer, visible, min_scale, max_scale);
  cast_layer(w, it);
}

WALK(layers) {
  ITEMS(layers, layer, -1, 1);
}

WALK(map) {
  HEADER();
  UNITS(map, name);
  PART(map, coordinate_system, coordinate_system);
  PART(map, layers, layers);
}

WALK(maps) {
  ITEMS(maps, map, 0, 0);
}

void walk_document(const vq_mxd_mxd* document, walk_listener listener, void* context) {
  walk w = {listener, context, 0};
  cast_layer(&w, NULL);
  cast_renderer(&w, NULL);
  cast_symbol(&w, NULL);
  walk_maps(&w, vq_mxd_mxd_get_maps(document));
}
