// Streams whose reports cost much.
#include "hostile_streams.h"
#include "rendering/property_page.h"
#include "support/outline_records.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

constexpr int max_text_units = 4999;

std::string long_text(char c) {
  return std::string(max_text_units, c);
}

// The numbers after an object's own are those of its parts. A slot takes the next object of its
// kind, so none is left empty.
Bytes colored_line(int number) {
  return Bytes().object(simple_line_id, number, 1,
                        Packed(rgb_color(number + 1, 50), 1.0, 0, trailer()));
}

Bytes char_marker(int number, const std::string& font_name) {
  return object<Tmxd_char_marker_symbol>(
      number, 3,
      {rgb_color(number + 1, 50), 0x41, 0.0, 8.0, 0.0, 0.0, 0.0, 0.0, trailer(), word(65535),
       Bytes().wide(font_name), Bytes().zeros(28)});
}

Bytes multilayer_marker(int number, int layers, const Bytes& first, const Bytes& again) {
  return Bytes().object(
      Tmxd_multilayer_marker_symbol::clsid, number, 1,
      Packed(trailer(), 0.0, 0.0, 8.0, 0.0, rgb_color(number + 1, 50), 0, 0.0,
             colored_line(number + 2), layers, first, repeated(layers - 1, again),
             repeated(layers, Bytes().i32(1)), repeated(layers, Bytes().i32(0)), run(16)));
}

// Of the line and, after it, the color that all others may refer to.
constexpr int line_number = 60002;

Bytes in_legend(int classes, const Bytes& content) {
  return in_layer(object<Tmxd_simple_renderer>(
      60000, 1, colored_line(line_number).add(legend_group(60001, "", classes, content))));
}

// The first class has the symbol of that number, all others refer to it.
Bytes in_classes(int n, const Class_id& id, int number, const Bytes& symbol) {
  Bytes classes = legend_class(10000, 2, "", symbol);
  for (int i = 1; i < n; ++i) {
    classes.add(legend_class(10000 + i, 2, "", Bytes().reference(id, number)));
  }
  return in_legend(n, classes);
}

// One long font name, drawn by each layer of each class.
Bytes font_names(int n) {
  constexpr int layers = 9;
  const Bytes again = reference<Tmxd_char_marker_symbol>(1);
  return in_classes(n, Tmxd_multilayer_marker_symbol::clsid, 100,
                    multilayer_marker(100, layers, char_marker(1, std::string(500, 'F')), again));
}

// Each class has a symbol of its own, which draws one marker again and again.
Bytes markers_along_lines(int n) {
  Bytes classes;
  for (int i = 0; i < n; ++i) {
    const Bytes marker =
        i == 0 ? char_marker(1, long_text('F')) : reference<Tmxd_char_marker_symbol>(1);
    classes.add(legend_class(
        10000 + i, 2, "",
        object<Tmxd_marker_line_symbol>(
            100 + i, 1,
            {byte(0), 0.0, marker, Bytes().null_object(), run(16), trailer(), run(25)})));
  }
  return in_legend(n, classes);
}

Bytes dashes(int number, int items, double filled, double empty) {
  return Bytes().object(
      Tmxd_line_template::clsid, number, 1,
      Packed(1.0, items, repeated(items - 1, Bytes().f64s({0, empty})), filled, empty));
}

Bytes hash_line(int number, const Bytes& line, const Bytes& its_template) {
  return object<Tmxd_hash_line_symbol>(
      number, 1,
      {90.0, 0, 0, 4000.0, byte(0), 0.0, line, reference<Tmxd_rgb_color>(line_number + 1),
       its_template, run(16), trailer(), byte(0), 0.0, 0.0});
}

// A line of hashes of hashes for each class. All have one pattern.
Bytes hashes(int n, const Bytes& pattern) {
  const Bytes again = reference<Tmxd_line_template>(1);
  const Bytes line = Bytes().reference(simple_line_id, line_number);
  Bytes classes;
  for (int i = 0; i < n; ++i) {
    const Bytes inner = hash_line(20000 + i, line, i == 0 ? pattern : again);
    classes.add(legend_class(10000 + i, 2, "", hash_line(30000 + i, inner, again)));
  }
  return in_legend(n, classes);
}

// A pattern of many parts without anything to draw.
Bytes empty_dashes(int n) {
  return hashes(n, dashes(1, 4000, 0, 1e-3));
}

Bytes short_dashes(int n) {
  return hashes(n, dashes(1, 99, 1e-3, 1e-3));
}

// All layers of a stack of groups, whose names are in each layer's path.
Bytes group_paths(int n) {
  constexpr int depth = 40;
  Bytes list = Bytes().i32(n);
  for (int i = 0; i < n; ++i) {
    list.add(members({foreign_layer(1000 + i, map_service_id, "layer")}));
  }
  const std::string name(500, 'G');
  for (int i = 0; i < depth; ++i) {
    list = member_list({listed_group(1 + i, name.c_str(), list)});
  }
  return Bytes().i32(1).add(listed_map(
      60002, "map", Bytes(before_list()).add(map_list({listed_group(900, "outer", list)}))));
}

// One data source and one coordinate system, which all layers refer to.
Bytes shared_sources(int n) {
  const std::string name = long_text('S');
  Bytes layers;
  for (int i = 0; i < n; ++i) {
    Bytes source = reference<Tmxd_feature_class_name>(1);
    Bytes folder = reference<Tmxd_workspace_name>(2);
    Bytes system = reference<Tmxd_geographic_coordinate_system>(3);
    if (i == 0) {
      source = feature_class(1, name.c_str());
      folder = workspace(2, name.c_str());
      system = geographic(3, "GEOGCS[\"" + std::string(9900, 'W') + "\"]");
    }
    layers.add(layer_record(100 + 2 * i, "L",
                            source.add(folder)
                                .add(simple_renderer(20000 + 2 * i))
                                .counting(156)
                                .wide("N")
                                .f64s({2, 1})
                                .add(system)));
  }
  return in_map(layers);
}

// One legend class with a long label, which all others refer to.
Bytes shared_labels(int n) {
  const std::string label = long_text('C');
  return in_legend(n, Bytes(legend_class(10000, 2, label.c_str(), line_symbol(1, 1)))
                          .add(repeated(n - 1, reference<Tmxd_legend_class>(10000))));
}

Bytes layer_references(int n) {
  return in_map(
      feature_layer(1, simple_renderer(10)).add(repeated(n, reference<Tmxd_feature_layer>(1))));
}

// Layers that cannot be read, each of them a loss of a map with a long name.
Bytes broken_layers(int n) {
  Bytes layers;
  for (int i = 0; i < n; ++i) {
    layers.add(object<Tmxd_feature_layer>(1 + i, 1, Bytes().i32(99999)));
  }
  return Bytes().i32(1).add(map_record(outer_number, long_text('M').c_str(), layers));
}

}  // namespace

const std::vector<Hostile_stream>& report_streams() {
  static const std::vector<Hostile_stream> streams = {
      {"font names", 100, font_names},       {"markers along lines", 100, markers_along_lines},
      {"empty dashes", 50, empty_dashes},    {"short dashes", 50, short_dashes},
      {"group paths", 100, group_paths},     {"shared sources", 25, shared_sources},
      {"shared labels", 200, shared_labels}, {"references to layers", 500, layer_references},
      {"broken layers", 250, broken_layers},
  };
  return streams;
}

}  // namespace mxd::fuzz
