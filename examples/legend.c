/* Prints the legend of a map document: its maps, their layers, and the label of each symbol. */
#include <stdio.h>

#include "vqk_file_mxd.h"

/* Prints UTF-16 as UTF-8. Surrogates are printed as "?". */
static void print_text(const vq_mxd_char* text) {
  for (; *text != 0; ++text) {
    unsigned int c = *text;
    if (c >= 0xD800 && c < 0xE000) c = '?';
    if (c < 0x80) {
      putchar((int)c);
    } else if (c < 0x800) {
      printf("%c%c", (int)(0xC0 | c >> 6), (int)(0x80 | (c & 0x3F)));
    } else {
      printf("%c%c%c", (int)(0xE0 | c >> 12), (int)(0x80 | (c >> 6 & 0x3F)),
             (int)(0x80 | (c & 0x3F)));
    }
  }
}

/* Decodes the first character and returns its length in bytes. A byte that is not valid UTF-8
   becomes 0xDC00 + byte, which the library converts back to that byte. */
static size_t first_character(const char* utf8, unsigned int* character) {
  static const unsigned int min_code[] = {0, 0x80, 0x800, 0x10000};
  const unsigned int first = (unsigned char)*utf8;
  const size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  unsigned int c = first & (0x7Fu >> more);
  size_t i;
  for (i = 1; i <= more && (utf8[i] & 0xC0) == 0x80; ++i) c = c << 6 | (unsigned)(utf8[i] & 0x3F);
  if (i <= more || (more == 0 && first >= 0x80) || c < min_code[more] || c > 0x10FFFF ||
      (c >= 0xD800 && c < 0xE000)) {
    *character = 0xDC00 + first;
    return 1;
  }
  *character = c;
  return more + 1;
}

/* Converts UTF-8 to UTF-16. A path longer than the capacity is cut off. */
static void from_utf8(const char* utf8, vq_mxd_char* wide, size_t capacity) {
  size_t length = 0;
  while (*utf8 != '\0' && length + 2 < capacity) {
    unsigned int c;
    utf8 += first_character(utf8, &c);
    if (c >= 0x10000) {
      wide[length++] = (vq_mxd_char)(0xD800 + ((c - 0x10000) >> 10));
      c = 0xDC00 + (c & 0x3FF);
    }
    wide[length++] = (vq_mxd_char)c;
  }
  wide[length] = 0;
}

static void print_symbol(const vq_mxd_symbol* symbol) {
  const vq_mxd_simple_fill_symbol* fill = vq_mxd_symbol_cast_simple_fill(symbol);
  printf("%s", symbol == NULL ? "no symbol" : vq_mxd_obj_get_type_str(VQ_MXD_OBJ(symbol)));
  if (fill != NULL && vq_mxd_simple_fill_symbol_get_color(fill) != NULL) {
    uint8_t r, g, b;
    vq_mxd_color_get_rgb(vq_mxd_simple_fill_symbol_get_color(fill), &r, &g, &b);
    printf(" #%02x%02x%02x", r, g, b);
  }
}

static void print_legend(const vq_mxd_legend_group* group) {
  int32_t i;
  for (i = 0; i < vq_mxd_legend_group_get_size(group); ++i) {
    const vq_mxd_legend_class* item = vq_mxd_legend_group_get(group, i);
    printf("      ");
    print_text(vq_mxd_legend_class_get_label(item));
    printf(": ");
    print_symbol(vq_mxd_legend_class_get_symbol(item));
    printf("\n");
  }
}

static void print_renderer(const vq_mxd_renderer* renderer) {
  const vq_mxd_simple_renderer* simple = vq_mxd_renderer_cast_simple_renderer(renderer);
  const vq_mxd_unique_value_renderer* unique = vq_mxd_renderer_cast_unique_value_renderer(renderer);
  const vq_mxd_class_breaks_renderer* breaks = vq_mxd_renderer_cast_class_breaks_renderer(renderer);
  if (simple != NULL) print_legend(vq_mxd_simple_renderer_get_legend_group(simple));
  if (unique != NULL) {
    print_legend(vq_mxd_unique_value_renderer_get_main_leg_grp(unique));
    print_legend(vq_mxd_unique_value_renderer_get_other_leg_grp(unique));
  }
  if (breaks != NULL) print_legend(vq_mxd_class_breaks_renderer_get_main_leg_grp(breaks));
}

static void print_map(const vq_mxd_map* map) {
  const vq_mxd_layers* layers = vq_mxd_map_get_layers(map);
  int32_t i;
  printf("  ");
  print_text(vq_mxd_map_get_name(map));
  printf("\n");
  for (i = 0; i < vq_mxd_layers_get_size(layers); ++i) {
    const vq_mxd_layer* layer = vq_mxd_layers_get(layers, i);
    const vq_mxd_feature_layer* feature = vq_mxd_layer_cast_feature_layer(layer);
    printf("    ");
    print_text(vq_mxd_layer_get_layer_name(layer));
    printf("\n");
    if (feature != NULL) print_renderer(vq_mxd_feature_layer_get_renderer(feature));
  }
}

int main(int argc, char** argv) {
  vq_mxd_char path[4096];
  vq_mxd_mxd* document;
  const vq_mxd_maps* maps;
  int32_t i;
  if (argc != 2) {
    fprintf(stderr, "usage: legend FILE\n");
    return 2;
  }
  from_utf8(argv[1], path, sizeof path / sizeof *path);
  document = vq_mxd_mxd_create();
  if (document == NULL || !vq_mxd_mxd_load(document, path)) {
    fprintf(stderr, "%s: not readable as a map document\n", argv[1]);
    vq_mxd_mxd_destroy(document);
    return 1;
  }
  printf("%s\n", argv[1]);
  maps = vq_mxd_mxd_get_maps(document);
  for (i = 0; i < vq_mxd_maps_get_size(maps); ++i) {
    const vq_mxd_map* map = vq_mxd_maps_get(maps, i);
    if (!vq_mxd_obj_get_repeat(VQ_MXD_OBJ(map))) print_map(map);
  }
  vq_mxd_mxd_destroy(document);
  return 0;
}
