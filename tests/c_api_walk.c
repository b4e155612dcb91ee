/* A host in C, with nothing but the public header: walks the sample document through the shared
   library and checks what every function answers. */
#include <stdio.h>
#include <string.h>

#include "vqk_file_mxd.h"

static int failures = 0;

#define CHECK(condition)                                             \
  do {                                                               \
    if (!(condition)) {                                              \
      ++failures;                                                    \
      printf("%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
    }                                                                \
  } while (0)

static int text_is(const vq_mxd_char* text, const char* ascii) {
  while (*ascii != '\0' && *text == (vq_mxd_char)*ascii) {
    ++text;
    ++ascii;
  }
  return *text == 0 && *ascii == '\0';
}

static void widen(const char* ascii, vq_mxd_char* wide, size_t capacity) {
  size_t i = 0;
  for (; ascii[i] != '\0' && i + 1 < capacity; ++i) wide[i] = (vq_mxd_char)(unsigned char)ascii[i];
  wide[i] = 0;
}

static int type_is(const vq_mxd_obj* object, const char* type) {
  return strcmp(vq_mxd_obj_get_type_str(object), type) == 0;
}

static void check_casts_of_null(void) {
  CHECK(vq_mxd_layer_cast_group_layer(NULL) == NULL);
  CHECK(vq_mxd_layer_cast_feature_layer(NULL) == NULL);
  CHECK(vq_mxd_renderer_cast_simple_renderer(NULL) == NULL);
  CHECK(vq_mxd_renderer_cast_unique_value_renderer(NULL) == NULL);
  CHECK(vq_mxd_renderer_cast_class_breaks_renderer(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_char_marker(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_multilayer_marker(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_simple_marker(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_cartographic_line(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_hash_line(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_marker_line(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_multilayer_line(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_simple_line(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_line_fill(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_marker_fill(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_multilayer_fill(NULL) == NULL);
  CHECK(vq_mxd_symbol_cast_simple_fill(NULL) == NULL);
}

/* The sample's colors: greys of a lightness, a strong red, and an orange given as cmyk. */
static int color_is(const vq_mxd_color* color, int red, int green, int blue) {
  uint8_t r = 0, g = 0, b = 0;
  if (color == NULL) return 0;
  vq_mxd_color_get_rgb(color, &r, &g, &b);
  return r == red && g == green && b == blue;
}

static double width_of(const vq_mxd_symbol* symbol) {
  const vq_mxd_simple_line_symbol* line = vq_mxd_symbol_cast_simple_line(symbol);
  return line == NULL ? -1 : vq_mxd_simple_line_symbol_get_width(line);
}

static void check_simple_marker(const vq_mxd_symbol* symbol) {
  const vq_mxd_simple_marker_symbol* marker = vq_mxd_symbol_cast_simple_marker(symbol);
  CHECK(marker != NULL);
  CHECK(vq_mxd_symbol_cast_char_marker(symbol) == NULL);
  CHECK(color_is(vq_mxd_simple_marker_symbol_get_color(marker), 245, 0, 0));
  CHECK(vq_mxd_color_get_no_use_flag(vq_mxd_simple_marker_symbol_get_color(marker)) == 1);
  CHECK(vq_mxd_color_get_dither_flag(vq_mxd_simple_marker_symbol_get_color(marker)) == 0);
  CHECK(vq_mxd_simple_marker_symbol_get_simple_marker_style(marker) == 4);
  CHECK(vq_mxd_simple_marker_symbol_get_size(marker) == 8);
  CHECK(vq_mxd_simple_marker_symbol_get_angle(marker) == 45);
  CHECK(vq_mxd_simple_marker_symbol_get_x_offset(marker) == 1);
  CHECK(vq_mxd_simple_marker_symbol_get_y_offset(marker) == -1);
  CHECK(vq_mxd_simple_marker_symbol_get_outline_flag(marker) == 1);
  CHECK(vq_mxd_simple_marker_symbol_get_outline_width(marker) == 0.5);
  CHECK(color_is(vq_mxd_simple_marker_symbol_get_outline_color(marker), 0, 0, 0));
}

static void check_font(const vq_mxd_font* font) {
  CHECK(strcmp(vq_mxd_font_get_font_name(font), "Arial") == 0);
  CHECK(vq_mxd_font_get_size(font) == 12.5);
  CHECK(vq_mxd_font_get_weight(font) == 700);
  CHECK(vq_mxd_font_get_charset(font) == 204);
  CHECK(vq_mxd_font_get_italic(font) == 1);
  CHECK(vq_mxd_font_get_underline(font) == 0);
  CHECK(vq_mxd_font_get_strikethrough(font) == 1);
}

static void check_char_marker(const vq_mxd_symbol* symbol) {
  const vq_mxd_char_marker_symbol* marker = vq_mxd_symbol_cast_char_marker(symbol);
  CHECK(marker != NULL);
  CHECK(vq_mxd_symbol_cast_simple_marker(symbol) == NULL);
  CHECK(vq_mxd_char_marker_symbol_get_unicode(marker) == 'A');
  CHECK(vq_mxd_char_marker_symbol_get_size(marker) == 12.5);
  CHECK(vq_mxd_char_marker_symbol_get_angle(marker) == 30);
  CHECK(vq_mxd_char_marker_symbol_get_x_offset(marker) == 2);
  CHECK(vq_mxd_char_marker_symbol_get_y_offset(marker) == -2);
  CHECK(color_is(vq_mxd_char_marker_symbol_get_color(marker), 100, 100, 100));
  CHECK(text_is(vq_mxd_char_marker_symbol_get_font_name(marker), "Arial"));
  check_font(vq_mxd_char_marker_symbol_get_font(marker));
}

static void check_multilayer_marker(const vq_mxd_symbol* symbol) {
  const vq_mxd_multilayer_marker_symbol* marker = vq_mxd_symbol_cast_multilayer_marker(symbol);
  const vq_mxd_marker_symbols* layers = vq_mxd_multilayer_marker_symbol_get_marker_symbols(marker);
  const vq_mxd_symbol* arrow = vq_mxd_marker_symbols_get(layers, 1);
  CHECK(vq_mxd_marker_symbols_get_size(layers) == 3);
  CHECK(vq_mxd_marker_symbols_get(layers, -1) == NULL);
  CHECK(vq_mxd_marker_symbols_get(layers, 3) == NULL);
  check_char_marker(vq_mxd_marker_symbols_get(layers, 0));
  CHECK(type_is(VQ_MXD_OBJ(arrow), "mxd_arrow_marker_symbol"));
  CHECK(vq_mxd_symbol_cast_char_marker(arrow) == NULL);
  CHECK(type_is(VQ_MXD_OBJ(vq_mxd_marker_symbols_get(layers, 2)), "mxd_picture_marker_symbol"));
  CHECK(vq_mxd_symbol_get_enabled(arrow) == 1 && vq_mxd_symbol_get_locked(arrow) == 0);
  CHECK(vq_mxd_symbol_get_locked(vq_mxd_marker_symbols_get(layers, 0)) == 1);
  CHECK(vq_mxd_symbol_get_enabled(vq_mxd_marker_symbols_get(layers, 2)) == 0);
  CHECK(text_is(vq_mxd_symbol_get_tag(arrow), "arrow"));
}

static void check_line_template(const vq_mxd_line_template* line_template) {
  const vq_mxd_line_template_item* item = vq_mxd_line_template_get(line_template, 1);
  CHECK(vq_mxd_line_template_get_pattern_interval(line_template) == 1.5);
  CHECK(vq_mxd_line_template_get_size(line_template) == 2);
  CHECK(vq_mxd_line_template_get(line_template, -1) == NULL);
  CHECK(vq_mxd_line_template_get(line_template, 2) == NULL);
  CHECK(vq_mxd_line_template_item_get_filled_squares(item) == 2);
  CHECK(vq_mxd_line_template_item_get_empty_squares(item) == 3);
}

static void check_cartographic_line(const vq_mxd_symbol* symbol) {
  const vq_mxd_cartographic_line_symbol* line = vq_mxd_symbol_cast_cartographic_line(symbol);
  const vq_mxd_color* color = vq_mxd_cartographic_line_symbol_get_color(line);
  uint8_t r, g, b;
  CHECK(color_is(color, 255, 128, 0));
  /* Of a cmyk color the result is the blue value. */
  CHECK(vq_mxd_color_get_rgb(color, &r, &g, &b) == 0);
  CHECK(vq_mxd_color_get_dither_flag(color) == 1);
  CHECK(vq_mxd_color_get_no_use_flag(color) == 0);
  CHECK(vq_mxd_cartographic_line_symbol_get_width(line) == 1.25);
  CHECK(vq_mxd_cartographic_line_symbol_get_offset(line) == -3);
  check_line_template(vq_mxd_cartographic_line_symbol_get_line_template(line));
}

static void check_multilayer_line(const vq_mxd_symbol* symbol, int copied) {
  const vq_mxd_multilayer_line_symbol* multilayer = vq_mxd_symbol_cast_multilayer_line(symbol);
  const vq_mxd_line_symbols* layers = vq_mxd_multilayer_line_symbol_get_line_symbols(multilayer);
  const vq_mxd_symbol* first = vq_mxd_line_symbols_get(layers, 0);
  const vq_mxd_simple_line_symbol* simple = vq_mxd_symbol_cast_simple_line(first);
  const vq_mxd_hash_line_symbol* hash =
      vq_mxd_symbol_cast_hash_line(vq_mxd_line_symbols_get(layers, 2));
  const vq_mxd_marker_line_symbol* marker =
      vq_mxd_symbol_cast_marker_line(vq_mxd_line_symbols_get(layers, 3));
  const vq_mxd_line_template* nothing;
  CHECK(vq_mxd_line_symbols_get_size(layers) == 4);
  CHECK(vq_mxd_line_symbols_get(layers, 4) == NULL);
  CHECK(vq_mxd_symbol_cast_cartographic_line(first) == NULL);
  CHECK(vq_mxd_simple_line_symbol_get_width(simple) == 0.5);
  CHECK(vq_mxd_simple_line_symbol_get_simple_line_style(simple) == 1);
  CHECK(color_is(vq_mxd_simple_line_symbol_get_color(simple), 126, 126, 126));
  check_cartographic_line(vq_mxd_line_symbols_get(layers, 1));
  CHECK(color_is(vq_mxd_hash_line_symbol_get_color(hash), 55, 55, 55));
  CHECK(vq_mxd_hash_line_symbol_get_width(hash) == 5);
  CHECK(vq_mxd_hash_line_symbol_get_angle(hash) == 60);
  CHECK(vq_mxd_hash_line_symbol_get_offset(hash) == 0.75);
  CHECK(width_of(vq_mxd_hash_line_symbol_get_line(hash)) == 0.25);
  check_line_template(vq_mxd_hash_line_symbol_get_line_template(hash));
  CHECK(vq_mxd_marker_line_symbol_get_offset(marker) == 2.5);
  check_simple_marker(vq_mxd_marker_line_symbol_get_pattern_marker(marker));
  nothing = vq_mxd_marker_line_symbol_get_line_template(marker);
  CHECK(vq_mxd_obj_get_exists(VQ_MXD_OBJ(nothing)) == copied);
  CHECK(vq_mxd_line_template_get_size(nothing) == 0);
}

static void check_multilayer_fill(const vq_mxd_symbol* symbol) {
  const vq_mxd_fill_symbols* layers =
      vq_mxd_multilayer_fill_symbol_get_fill_symbols(vq_mxd_symbol_cast_multilayer_fill(symbol));
  const vq_mxd_line_fill_symbol* hatching =
      vq_mxd_symbol_cast_line_fill(vq_mxd_fill_symbols_get(layers, 0));
  CHECK(vq_mxd_fill_symbols_get_size(layers) == 2);
  CHECK(vq_mxd_fill_symbols_get(layers, -1) == NULL);
  CHECK(vq_mxd_fill_symbols_get(layers, 2) == NULL);
  CHECK(vq_mxd_symbol_cast_line_fill(vq_mxd_fill_symbols_get(layers, 1)) == NULL);
  CHECK(width_of(vq_mxd_line_fill_symbol_get_pattern(hatching)) == 0.6);
  CHECK(width_of(vq_mxd_line_fill_symbol_get_outline(hatching)) == 0.7);
  CHECK(vq_mxd_line_fill_symbol_get_angle(hatching) == 135);
  CHECK(vq_mxd_line_fill_symbol_get_offset(hatching) == 1);
  CHECK(vq_mxd_line_fill_symbol_get_separation(hatching) == 5);
}

static void check_marker_fill(const vq_mxd_symbol* symbol) {
  const vq_mxd_marker_fill_symbol* fill = vq_mxd_symbol_cast_marker_fill(symbol);
  CHECK(fill != NULL && vq_mxd_symbol_cast_simple_fill(symbol) == NULL);
  check_char_marker(vq_mxd_marker_fill_symbol_get_marker(fill));
  CHECK(width_of(vq_mxd_marker_fill_symbol_get_outline(fill)) == 0.8);
  CHECK(vq_mxd_marker_fill_symbol_get_offset_x(fill) == 3);
  CHECK(vq_mxd_marker_fill_symbol_get_offset_y(fill) == 4);
  CHECK(vq_mxd_marker_fill_symbol_get_separation_x(fill) == 10);
  CHECK(vq_mxd_marker_fill_symbol_get_separation_y(fill) == 12);
  CHECK(vq_mxd_marker_fill_symbol_get_random(fill) == 1);
}

static const vq_mxd_symbol* legend_symbol(const vq_mxd_legend_group* group, int32_t index,
                                          const char* label) {
  const vq_mxd_legend_class* legend_class = vq_mxd_legend_group_get(group, index);
  CHECK(text_is(vq_mxd_legend_class_get_label(legend_class), label));
  return vq_mxd_legend_class_get_symbol(legend_class);
}

static void check_simple_renderer(const vq_mxd_renderer* base) {
  const vq_mxd_simple_renderer* renderer = vq_mxd_renderer_cast_simple_renderer(base);
  const vq_mxd_legend_group* legend = vq_mxd_simple_renderer_get_legend_group(renderer);
  const vq_mxd_symbol* symbol = vq_mxd_simple_renderer_get_symbol(renderer);
  const vq_mxd_symbol* again = legend_symbol(legend, 0, "River");
  CHECK(vq_mxd_renderer_cast_unique_value_renderer(base) == NULL);
  check_multilayer_line(symbol, 0);
  /* The legend only refers to the symbol, and so holds a copy of it. */
  CHECK(vq_mxd_obj_get_repeat(VQ_MXD_OBJ(again)) == 1);
  CHECK(vq_mxd_obj_get_number(VQ_MXD_OBJ(again)) == vq_mxd_obj_get_number(VQ_MXD_OBJ(symbol)));
  check_multilayer_line(again, 1);
}

static void check_unique_values(const vq_mxd_unique_values* values) {
  const vq_mxd_unique_value* capital = vq_mxd_unique_values_get(values, 0);
  const vq_mxd_unique_value* town = vq_mxd_unique_values_get(values, 1);
  CHECK(vq_mxd_unique_values_get_size(values) == 2);
  CHECK(vq_mxd_unique_values_get(values, -1) == NULL);
  CHECK(vq_mxd_unique_values_get(values, 2) == NULL);
  CHECK(vq_mxd_unique_value_get_int1(capital) == 10);
  CHECK(vq_mxd_unique_value_get_int2(capital) == 11);
  CHECK(vq_mxd_unique_value_get_int3(capital) == 12);
  CHECK(text_is(vq_mxd_unique_value_get_str(town), "town,no,5"));
  CHECK(vq_mxd_unique_value_get_int1(town) == 0xFFFFFFFF);
  CHECK(vq_mxd_unique_value_get_int2(town) == 0xFFFFFFFF);
  CHECK(vq_mxd_unique_value_get_int3(town) == 2);
}

static void check_unique_value_renderer(const vq_mxd_renderer* base) {
  const vq_mxd_unique_value_renderer* renderer = vq_mxd_renderer_cast_unique_value_renderer(base);
  const vq_mxd_legend_group* legend = vq_mxd_unique_value_renderer_get_main_leg_grp(renderer);
  CHECK(vq_mxd_renderer_cast_class_breaks_renderer(base) == NULL);
  CHECK(vq_mxd_unique_value_renderer_get_propname_count(renderer) == 3);
  CHECK(text_is(vq_mxd_unique_value_renderer_get_propname1(renderer), "KIND"));
  CHECK(text_is(vq_mxd_unique_value_renderer_get_propname2(renderer), "PORT"));
  CHECK(text_is(vq_mxd_unique_value_renderer_get_propname3(renderer), "SIZE"));
  check_simple_marker(vq_mxd_unique_value_renderer_get_symbol(renderer));
  check_simple_marker(
      legend_symbol(vq_mxd_unique_value_renderer_get_other_leg_grp(renderer), 0, "other places"));
  CHECK(text_is(vq_mxd_legend_group_get_label(legend), "Kind, port"));
  CHECK(vq_mxd_legend_group_get_size(legend) == 2);
  CHECK(vq_mxd_legend_group_get(legend, -1) == NULL);
  CHECK(vq_mxd_legend_group_get(legend, 2) == NULL);
  check_multilayer_marker(legend_symbol(legend, 0, "Capital"));
  check_char_marker(legend_symbol(legend, 1, "Town"));
  check_unique_values(vq_mxd_unique_value_renderer_get_unique_values(renderer));
}

static void check_class_breaks_renderer(const vq_mxd_renderer* base) {
  const vq_mxd_class_breaks_renderer* renderer = vq_mxd_renderer_cast_class_breaks_renderer(base);
  const vq_mxd_ranges* ranges = vq_mxd_class_breaks_renderer_get_ranges(renderer);
  const vq_mxd_legend_group* legend = vq_mxd_class_breaks_renderer_get_main_leg_grp(renderer);
  const vq_mxd_simple_fill_symbol* little =
      vq_mxd_symbol_cast_simple_fill(legend_symbol(legend, 0, "little"));
  CHECK(vq_mxd_renderer_cast_simple_renderer(base) == NULL);
  CHECK(text_is(vq_mxd_class_breaks_renderer_get_propname(renderer), "WOODS"));
  CHECK(vq_mxd_ranges_get_size(ranges) == 3);
  CHECK(vq_mxd_ranges_get_min_bnd(ranges, 1) == 10 && vq_mxd_ranges_get_max_bnd(ranges, 1) == 50);
  CHECK(vq_mxd_ranges_get_min_bnd(ranges, -1) == 0 && vq_mxd_ranges_get_max_bnd(ranges, 3) == 0);
  CHECK(color_is(vq_mxd_simple_fill_symbol_get_color(little), 219, 219, 219));
  CHECK(width_of(vq_mxd_simple_fill_symbol_get_outline(little)) == 0.4);
  check_marker_fill(legend_symbol(legend, 1, "some"));
  check_multilayer_fill(legend_symbol(legend, 2, "much"));
}

static void check_rivers(const vq_mxd_layer* layer) {
  const vq_mxd_feature_layer* rivers = vq_mxd_layer_cast_feature_layer(layer);
  const vq_mxd_basic_feature_class_name* name;
  const vq_mxd_coordinate_system* system;
  CHECK(rivers != NULL);
  CHECK(vq_mxd_layer_cast_group_layer(layer) == NULL);
  CHECK(text_is(vq_mxd_layer_get_layer_name(layer), "Rivers & canals"));
  CHECK(text_is(vq_mxd_layer_get_layer_type_name(layer), "Feature Layer"));
  CHECK(vq_mxd_layer_get_visible(layer) == 0xFFFF);
  CHECK(vq_mxd_layer_get_min_scale(layer) == 500000);
  CHECK(vq_mxd_layer_get_max_scale(layer) == 10000);
  name = vq_mxd_feature_layer_get_basic_feature_class_name(rivers);
  CHECK(name != NULL && type_is(VQ_MXD_OBJ(name), "mxd_feature_class_name"));
  CHECK(text_is(vq_mxd_basic_feature_class_name_get_name(name), "rivers"));
  CHECK(text_is(vq_mxd_basic_feature_class_name_get_type_name1(name), "Shapefile Feature Class"));
  CHECK(text_is(vq_mxd_basic_feature_class_name_get_type_name2(name), "Shape"));
  CHECK(vq_mxd_basic_feature_class_name_get_geom_type(name) == 3);
  CHECK(text_is(vq_mxd_workspace_name_get_name(vq_mxd_feature_layer_get_workspace_name(rivers)),
                "C:\\data\\base"));
  system = vq_mxd_feature_layer_get_coordinate_system(rivers);
  CHECK(system != NULL && strcmp(vq_mxd_coordinate_system_get_wkt(system), "") == 0);
  check_simple_renderer(vq_mxd_feature_layer_get_renderer(rivers));
}

static const vq_mxd_renderer* renderer_of(const vq_mxd_layer* layer) {
  return vq_mxd_feature_layer_get_renderer(vq_mxd_layer_cast_feature_layer(layer));
}

static void check_layers(const vq_mxd_layers* layers) {
  const vq_mxd_layer* group = vq_mxd_layers_get(layers, 0);
  CHECK(vq_mxd_layers_get_size(layers) == 6);
  CHECK(vq_mxd_layers_get(layers, -1) == NULL);
  CHECK(vq_mxd_layers_get(layers, 6) == NULL);
  CHECK(vq_mxd_layer_cast_feature_layer(group) == NULL);
  CHECK(vq_mxd_group_layer_get_layer_count(vq_mxd_layer_cast_group_layer(group)) == 2);
  CHECK(vq_mxd_obj_get_exists(VQ_MXD_OBJ(group)) == 1);
  check_rivers(vq_mxd_layers_get(layers, 1));
  CHECK(type_is(VQ_MXD_OBJ(vq_mxd_layers_get(layers, 2)), "mxd_raster_layer"));
  check_unique_value_renderer(renderer_of(vq_mxd_layers_get(layers, 3)));
  check_class_breaks_renderer(renderer_of(vq_mxd_layers_get(layers, 4)));
  CHECK(type_is(VQ_MXD_OBJ(vq_mxd_layers_get(layers, 5)), "mxd_fdo_graphics_layer"));
}

static void check_maps(const vq_mxd_maps* maps) {
  const vq_mxd_map* map = vq_mxd_maps_get(maps, 0);
  const vq_mxd_coordinate_system* system = vq_mxd_map_get_coordinate_system(map);
  CHECK(vq_mxd_maps_get_size(maps) == 3);
  CHECK(text_is(vq_mxd_map_get_name(map), "Layers"));
  CHECK(type_is(VQ_MXD_OBJ(map), "mxd_map"));
  CHECK(strncmp(vq_mxd_coordinate_system_get_wkt(system), "PROJCS[\"WGS_1984_UTM_Zone_33N\"", 30) ==
        0);
  check_layers(vq_mxd_map_get_layers(map));
  CHECK(vq_mxd_layers_get_size(vq_mxd_map_get_layers(vq_mxd_maps_get(maps, 1))) == 0);
  CHECK(vq_mxd_obj_get_repeat(VQ_MXD_OBJ(map)) == 0);
  CHECK(vq_mxd_obj_get_repeat(VQ_MXD_OBJ(vq_mxd_maps_get(maps, 2))) == 1);
  CHECK(vq_mxd_obj_get_number(VQ_MXD_OBJ(vq_mxd_maps_get(maps, 2))) ==
        vq_mxd_obj_get_number(VQ_MXD_OBJ(map)));
}

static int is_xml_file(const char* path) {
  char start[6] = "";
  FILE* file = fopen(path, "rb");
  if (file == NULL) return 0;
  if (fread(start, 1, 5, file) != 5) start[0] = 0;
  fclose(file);
  return strcmp(start, "<?xml") == 0;
}

int main(int argc, char** argv) {
  static const vq_mxd_char nowhere[] = {'n', 'o', '/', 's', 'u', 'c', 'h', 0};
  vq_mxd_char path[4096];
  vq_mxd_mxd* document = vq_mxd_mxd_create();
  if (argc != 3) return 2;
  widen(argv[1], path, sizeof path / sizeof *path);
  vq_mxd_mxd_destroy(NULL);
  check_casts_of_null();
  CHECK(vq_mxd_maps_get_size(vq_mxd_mxd_get_maps(document)) == 0);
  CHECK(vq_mxd_mxd_load(document, nowhere) == 0);
  CHECK(vq_mxd_mxd_load(document, path) == 1);
  check_maps(vq_mxd_mxd_get_maps(document));
  CHECK(vq_mxd_mxd_save_xml(document, nowhere) == 0);
  widen(argv[2], path, sizeof path / sizeof *path);
  remove(argv[2]);
  CHECK(vq_mxd_mxd_save_xml(document, path) == 1);
  CHECK(is_xml_file(argv[2]));
  vq_mxd_mxd_destroy(document);
  printf("%d failed\n", failures);
  return failures == 0 ? 0 : 1;
}
