// Prints the legend of a map document: its maps, their layers, and the label of each symbol.
#include <cstdio>

#include "vqk_handles.hpp"

namespace {

void print_symbol(const vq_mxd_symbol* symbol) {
  std::printf("%s", symbol ? vq_mxd_obj_get_type_str(VQ_MXD_OBJ(symbol)) : "no symbol");
  const auto* fill = vq_mxd_symbol_cast_simple_fill(symbol);
  const auto* color = fill ? vq_mxd_simple_fill_symbol_get_color(fill) : nullptr;
  if (color) {
    uint8_t r, g, b;
    vq_mxd_color_get_rgb(color, &r, &g, &b);
    std::printf(" #%02x%02x%02x", r, g, b);
  }
}

void print_legend(const vq_mxd_legend_group* group) {
  for (const auto* item :
       vqk::Items(group, vq_mxd_legend_group_get_size, vq_mxd_legend_group_get)) {
    std::printf("      %s: ", vqk::utf8(vq_mxd_legend_class_get_label(item)).c_str());
    print_symbol(vq_mxd_legend_class_get_symbol(item));
    std::printf("\n");
  }
}

void print_renderer(const vq_mxd_renderer* renderer) {
  if (const auto* simple = vq_mxd_renderer_cast_simple_renderer(renderer)) {
    print_legend(vq_mxd_simple_renderer_get_legend_group(simple));
  } else if (const auto* unique = vq_mxd_renderer_cast_unique_value_renderer(renderer)) {
    print_legend(vq_mxd_unique_value_renderer_get_main_leg_grp(unique));
    print_legend(vq_mxd_unique_value_renderer_get_other_leg_grp(unique));
  } else if (const auto* breaks = vq_mxd_renderer_cast_class_breaks_renderer(renderer)) {
    print_legend(vq_mxd_class_breaks_renderer_get_main_leg_grp(breaks));
  }
}

void print_map(const vq_mxd_map* map) {
  std::printf("  %s\n", vqk::utf8(vq_mxd_map_get_name(map)).c_str());
  const auto* layers = vq_mxd_map_get_layers(map);
  for (const auto* layer : vqk::Items(layers, vq_mxd_layers_get_size, vq_mxd_layers_get)) {
    std::printf("    %s\n", vqk::utf8(vq_mxd_layer_get_layer_name(layer)).c_str());
    const auto* feature = vq_mxd_layer_cast_feature_layer(layer);
    if (feature) print_renderer(vq_mxd_feature_layer_get_renderer(feature));
  }
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) throw std::runtime_error("usage: legend FILE");
  const vqk::Document document(argv[1]);
  std::printf("%s\n", argv[1]);
  for (const auto* map : document.maps()) {
    if (!vq_mxd_obj_get_repeat(VQ_MXD_OBJ(map))) print_map(map);
  }
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
