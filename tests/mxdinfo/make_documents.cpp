// Writes one of the documents for the tests of mxdinfo:
//   make_documents FILE sample | gallery | facts | lossy | deep | long_paths | dashes
//   make_documents FILE named NAME WORKSPACE DATASET FEATURE_DATASET HIDDEN
// These are UTF-16LE texts in hexadecimal digits: that of every other name in the document, those
// of its layer's data, and one after the map.
#include <fstream>
#include <string>
#include <vector>

#include "support/compound_builder.h"
#include "support/outline_records.h"
#include "support/sample_document.h"
#include "support/sample_symbols.h"

namespace mxd::test {
namespace {

// A legend class for each symbol, without a value.
class Gallery {
 public:
  Bytes maps() {
    add_markers();
    add_lines();
    add_fills();
    // Nothing that a search for their symbols may find follows these.
    add("hash line without a line", hatches({}, zeros));
    add("no symbol", {});
    const Bytes group = legend_group(next(), "", count_, legend_);
    const Bytes renderer =
        Bytes().object(Tmxd_unique_value_renderer::clsid, next(), 3,
                       Packed{1, "NAME", run(3), run(10), zeros, 0, group, Bytes().zeros(16), 0});
    const Bytes page = Bytes().guid(Tmxd_unique_value_property_page::clsid.guid);
    return in_map(layer_record(next(), "Symbols",
                               Packed{feature_class(next(), "symbols"), workspace(next(), ""),
                                      renderer, page, "", 0.0, 0.0}));
  }

 private:
  int next() { return numbers_.take(); }

  void add(const std::string& label, const Bytes& symbol) {
    legend_.add(legend_class(next(), 2, label.c_str(), symbol));
    ++count_;
  }

  // Gray, or a color that is not used.
  Bytes color(double lightness, int unused = 0) {
    return numbers_.object<Tmxd_rgb_color>(
        1, Packed{run(3), lightness, 0.0, 0.0, byte(0), byte(unused)});
  }

  Bytes marker(int style, double size, int outline = 1) {
    return numbers_.object<Tmxd_simple_marker_symbol>(
        1, Packed{color(40), size, style, trailer(), 30.0 * style, 1.0 * style, -2.0, byte(outline),
                  1.5, color(80), run(2)});
  }
  Bytes character(const char* font_name, int code, double size, double x) {
    return numbers_.object<Tmxd_char_marker_symbol>(
        3, Packed{color(20), code, 0.0, size, x, 0.0, 0.0, 0.0, trailer(), word(65535), font_name,
                  0.0, 0.0, run(2), run(10)});
  }
  Bytes arrow(double length, double width) {
    return numbers_.object<Tmxd_arrow_marker_symbol>(
        1, Packed{color(30), length, width, 0.0, 0, trailer(), 5.0, -7.0, run(2)});
  }
  Bytes picture() {
    const Bytes placed = Bytes().f64s({15, 20, 3, 4}).zeros(16).trailer().zeros(9);
    return numbers_.object<Tmxd_picture_marker_symbol>(1, Packed{Bytes().zeros(32), placed});
  }
  // The topmost layer, which is the first, is switched off; the last one is locked.
  Bytes layered_marker() {
    const Bytes base = Packed{trailer(), 0.0, 0.0, 0.0, 0.0, color(5), 0, 0.0, marker(0, 3)};
    const Bytes layers = Packed{3, marker(0, 4, 0), arrow(9, 3), picture()};
    const Bytes enabled_and_locked = Packed{0, 1, 1, 0, 0, 1};
    return numbers_.object<Tmxd_multilayer_marker_symbol>(
        2, Packed{base, layers, enabled_and_locked, 0.0, 0.0});
  }

  void add_markers() {
    for (int style = 0; style <= 5; ++style) {
      add("marker style " + std::to_string(style), marker(style, 6, style % 2));
    }
    add("character", character("A <b> \"c\"", 0x2665, 8, 0));
    add("half a character", character("Arial", 0xD800, 8, 0));
    add("large character", character("Arial", 'x', 60, 12));
    add("shape", character("ESRI Default Marker", 33, 10, 0));
    add("large arrow", arrow(20, 50));
    add("layered marker", layered_marker());
  }

  Bytes line(int style = 0, double width = 1) {
    return numbers_.object<Tmxd_simple_line_symbol>(1, Packed{color(60), width, style, trailer()});
  }
  Bytes dashes() {
    return numbers_.object<Tmxd_line_template>(1, Packed{2.0, 2, 3.0, 1.0, 0.0, 2.5});
  }
  Bytes decoration(int flip_first, int flip_all, int unfixed, const Bytes& positions) {
    const Bytes element = numbers_.object<Tmxd_simple_line_decoration_element>(
        1, Packed{byte(flip_first), byte(unfixed), byte(flip_all), run(2), arrow(4, 2), positions});
    return numbers_.object<Tmxd_line_decoration>(1, Packed{1, element});
  }
  Bytes road(int cap_and_join, double offset, const Bytes& pattern, const Bytes& decorations) {
    return numbers_.object<Tmxd_cartographic_line_symbol>(
        1, Packed{cap_and_join, cap_and_join, 2.0, byte(0), offset,
                  color(50, cap_and_join == 0 ? 255 : 0), pattern, decorations, trailer(), byte(0),
                  10.0, 0.0});
  }
  Bytes hatches(const Bytes& symbol, const Bytes& pattern) {
    return numbers_.object<Tmxd_hash_line_symbol>(
        1, Packed{75.0, 1, 2, 6.0, byte(0), -1.5, symbol, color(10), pattern, run(16), trailer(),
                  byte(0), 10.0, 0.0});
  }
  Bytes marker_line() {
    return numbers_.object<Tmxd_marker_line_symbol>(
        1, Packed{byte(0), 1.0, arrow(5, 3), zeros, run(16), trailer(), run(25)});
  }

  void add_lines() {
    for (int style = 0; style <= 7; ++style) {
      add("line style " + std::to_string(style), line(style));
    }
    const Bytes positions = Packed{4, -0.5, 0.25, 1.5, 1.0};
    add("plain road", road(0, 0, zeros, zeros));
    add("dashed road", road(1, 3, dashes(), zeros));
    add("decorated road", road(2, -3, zeros, decoration(1, 0, 0, positions)));
    add("turned decoration", road(1, 0, zeros, decoration(0, 1, 1, positions)));
    add("hash line", hatches(line(1, 0.5), dashes()));
    add("marker line", marker_line());
  }

  Bytes fill(const Bytes& outline, int unused = 0) {
    return numbers_.object<Tmxd_simple_fill_symbol>(
        1, Packed{outline, color(90, unused), trailer(), 0});
  }
  Bytes hatched_fill() {
    return numbers_.object<Tmxd_line_fill_symbol>(
        1, Packed{0.0, 0.0, line(0, 0.5), line(), 30.0, 2.0, 6.0, trailer()});
  }
  Bytes marker_fill(int random) {
    return numbers_.object<Tmxd_marker_fill_symbol>(
        1, Packed{random, 3.0, 4.0, 20.0, 12.0, 0.0, 0.0, marker(1, 4, 0), line(), trailer(), 0.0});
  }

  void add_fills() {
    add("plain fill", fill(line()));
    add("fill with arrows around",
        fill(road(1, 0, zeros, decoration(0, 0, 0, Packed{2, 0.3, 0.6})), 255));
    add("hatched fill", hatched_fill());
    add("even markers", marker_fill(0));
    add("random markers", marker_fill(1));
  }

  const Bytes zeros = Bytes().null_object();
  Object_numbers numbers_;
  Bytes legend_;
  int count_ = 0;
};

struct Layer {
  int number;
  const char* name;
  const char* dataset;
  const char* folder;
  Bytes scales = Bytes().f64s({0, 0});
  Bytes renderer = {};
  Bytes rest = {};
};

// Takes its number and those up to nine after it.
Bytes listed(const Layer& layer) {
  Bytes drawing = layer.renderer;
  if (drawing.size() == 0) drawing = simple_renderer(layer.number + 3).zeros(156);
  return layer_record(
      layer.number, layer.name,
      Packed{feature_class(layer.number + 1, layer.dataset),
             workspace(layer.number + 2, layer.folder), drawing, "F", layer.scales, layer.rest});
}

Bytes map_system(const char* authority) {
  const std::string wkt = std::string("GEOGCS[\"G\",AUTHORITY[\"EPSG\",") + authority + "]]";
  return text("").object(Tmxd_geographic_coordinate_system::clsid, 60001, 7,
                         Bytes().narrow(wkt).zeros(115 - 24).f64s({1e-9, 0.001, 0.001}));
}

// Everything that an outline has: lists, labels, queries, extents, references and losses.
Bytes facts() {
  const Bytes small = text_symbol(902, rgb_color(903, 50), font("Arial", 8, 8.25));
  const Bytes large = text_symbol(905, rgb_color(906, 100), font("Verdana", 10, 10));
  const Bytes both =
      label_class(901, text("[N] & \"M\""), small).add(label_class(904, text("[O]"), large));
  const Bytes shown = labels(900, -1, both, 2);
  const Bytes hidden = labels(911, 0, label_class(912, text("[H]"), {}));
  const Bytes utm = geographic(920, "PROJCS[\"U\",AUTHORITY[\"EPSG\",32633]]");
  const Bytes classes = legend_class(205, 2, "10 - 20", line_symbol(206, 2))
                            .add(legend_class(207, 2, "under 10", line_symbol(208, 1)));
  const Bytes breaks = class_breaks_renderer(203, Packed{2, 10.0, 20.0, 0.0, 10.0}, 2, classes)
                           .add(normalization(number_format(209), text("AREA"), 0))
                           .guid(Tmxd_graduated_color_property_page::clsid.guid);
  const Bytes roads = listed({100,
                              "Roads \"A\"",
                              "roads.SHP",
                              "\\\\server\\maps",
                              Bytes().f64s({5000, 100}),
                              {},
                              definition_query(text("N = \"a, b\"")).add(shown).add(utm)});
  const Bytes farms = listed({200, "Farms", "farms", "maps/land", Bytes().f64s({-1, 1e13}), breaks,
                              definition_query(text("")).add(hidden)});
  const Bytes ponds = listed({300, "Ponds", "ponds", "SERVER=db;USER=me"});
  // The search for the symbol finds the line after the renderer, which is not its own.
  const Bytes unknown_symbol = Bytes().object(unheard_of_id, 404, 1, Bytes().counting(8));
  const Bytes plain = labels(950, -1, label_class(951, text("[W]"), {}));
  const Bytes wells = listed({400, "Wells", "wells", "D:\\town.gdb", Bytes().f64s({0, 0}),
                              Bytes()
                                  .object(Tmxd_simple_renderer::clsid, 403, 1, unknown_symbol)
                                  .add(line_symbol(405, 1))
                                  .zeros(156),
                              definition_query(text("")).add(plain)});
  const Bytes inner = listed_group(500, "Inner", member_list({farms}));
  const Bytes again = Bytes().reference(Tmxd_feature_layer::clsid, 100);
  const Bytes outer = listed_group(510, "Outer; \"old\"", member_list({roads, again, inner}));
  const Bytes services = basemap(
      520, "Images",
      member_list({foreign_layer(521, map_service_id, "Service"), image_service(522, "Heights")}));
  const Bytes unknown = foreign_layer(523, unheard_of_id, "Unknown");
  const Bytes broken =
      Bytes().object(Tmxd_feature_layer::clsid, 530, 34, text("Broken").counting(40));
  const Bytes extents =
      Packed(envelope(540, {1, 2, 3.5, 4}), its_system(), envelope(541, {5, 6, 7, 8}));
  const Bytes layers = map_list({outer, ponds, services, unknown, broken, again});
  const Bytes all = map_system("4326").add(layers).counting(9).add(extents);
  const Bytes some = text("").null_object().i32(3).add(map_entries({wells}));
  const Bytes map = listed_map(1, "Land", all);
  return Bytes().i32(3).add(map).add(listed_map(2, "Town", some)).reference(Tmxd_map::clsid, 1);
}

// A map with a group of one layer, all of whose texts are the same.
struct Data {
  Wide_string workspace;
  Wide_string dataset;
  Wide_string feature_dataset;
};

Bytes data_name(const Bytes& type, const Data& data) {
  Bytes holder;
  if (!data.feature_dataset.empty()) {
    holder.object(Tmxd_feature_dataset_name::clsid, 12, 1,
                  Packed{Bytes().wide(data.feature_dataset), "", "", "", byte(0)});
  }
  return Bytes().object(Tmxd_feature_class_name::clsid, 6, 1,
                        Packed{Bytes().wide(data.dataset), Bytes().zeros(6), type, type, 1,
                               Bytes().zeros(6), holder});
}

Bytes named(const Wide_string& name, const Data& data) {
  const Bytes wide = Bytes().wide(name);
  const Bytes color = rgb_color(1, 50);
  const Bytes marker = Bytes().object(Tmxd_char_marker_symbol::clsid, 2, 3,
                                      Packed{color, 0x41, 0.0, 8.0, 0.0, 0.0, 0.0, 0.0, trailer(),
                                             word(65535), wide, Bytes().zeros(28)});
  const Bytes again = Bytes().reference(Tmxd_char_marker_symbol::clsid, 2);
  const Bytes item =
      Bytes().object(Tmxd_legend_class::clsid, 3, 2, Packed{again, wide, Bytes().zeros(26)});
  const Bytes legend = Bytes().object(Tmxd_legend_group::clsid, 4, 1, Packed{0, wide, 1, item});
  const Bytes renderer = Bytes().object(Tmxd_simple_renderer::clsid, 5, 1, Packed{marker, legend});
  const Bytes folder =
      Bytes().object(Tmxd_workspace_name::clsid, 7, 1, Bytes().wide(data.workspace));
  const std::string wkt = "GEOGCS[\"" + to_narrow(name) + "\",UNIT[\"Degree\",0.0174532925199433]]";
  const Bytes layer = Bytes().object(
      Tmxd_feature_layer::clsid, 8, 1,
      Packed{wide, wide, word(0xFFFF), Bytes().zeros(4), data_name(wide, data), folder, renderer,
             Bytes().zeros(156), "", 50000.0, 0.0, geographic(9, wkt.substr(0, 9998))});
  const Bytes group = Bytes().object(Tmxd_group_layer::clsid, 10, 1,
                                     Packed{wide, word(1), Bytes().zeros(20), 1, Bytes().zeros(8)});
  return Bytes().i32(1).object(Tmxd_map::clsid, 11, 1, Packed{wide, group, layer});
}

// A map whose only layer cannot be decoded.
Bytes lossy() {
  const Bytes layer = Bytes().object(Tmxd_feature_layer::clsid, 1, 1, Bytes().i32(99999));
  return Bytes().i32(1).add(map_record(2, "lossy", layer));
}

Bytes deep() {
  Bytes groups;
  for (int number = 1; number <= 3000; ++number) groups.add(group_layer(number, "g", 1));
  return in_map(groups);
}

// Layers with impossible scales in groups with long names.
Bytes long_paths() {
  constexpr int depth = 40;
  constexpr int count = 120;
  Bytes layers;
  for (int i = 1; i <= depth; ++i) {
    layers.add(group_layer(i, std::string(1000, 'g').c_str(), i == depth ? count : 1));
  }
  for (int i = 0; i < count; ++i) {
    layers.add(listed({100 + 10 * i, "a", "a", "a", Bytes().f64s({-1, 0})}));
  }
  return in_map(layers);
}

// A line with 4000 dashes.
Bytes dashes() {
  Bytes pattern = Bytes().f64(1).i32(4000);
  for (int i = 0; i < 4000; ++i) pattern.f64s({1, 0});
  return in_simple_renderer(
      Bytes().object(Tmxd_cartographic_line_symbol::clsid, 1, 1,
                     Packed{0, 0, 1.0, byte(0), 0.0, rgb_color(2, 50),
                            Bytes().object(Tmxd_line_template::clsid, 3, 1, pattern),
                            Bytes().null_object(), trailer(), byte(0), 0.0, 0.0}));
}

Wide_string from_hex(const std::string& hex) {
  Wide_string text;
  for (std::size_t at = 0; at + 4 <= hex.size(); at += 4) {
    const int unit = std::stoi(hex.substr(at + 2, 2) + hex.substr(at, 2), nullptr, 16);
    text.push_back(static_cast<Wide_char>(unit));
  }
  return text;
}

Bytes named(std::vector<std::string> texts) {
  texts.resize(6);
  Bytes bytes =
      named(from_hex(texts[1]), {from_hex(texts[2]), from_hex(texts[3]), from_hex(texts[4])});
  for (const Wide_char unit : from_hex(texts[5])) bytes.u16(unit);
  return bytes;
}

Byte_run document(const std::vector<std::string>& texts) {
  const std::string kind = texts.empty() ? "" : texts.front();
  if (kind == "sample") return sample_document();
  Compound_file file;
  if (kind == "facts") {
    file.stream("Version", Bytes().wide("10.6").data())
        .stream("Metadata", metadata(4, 43124.7, 11).data());
  }
  const Bytes maps = kind == "gallery"      ? Gallery().maps()
                     : kind == "facts"      ? facts()
                     : kind == "lossy"      ? lossy()
                     : kind == "deep"       ? deep()
                     : kind == "long_paths" ? long_paths()
                     : kind == "dashes"     ? dashes()
                                            : named(texts);
  return file.stream("Maps", maps.data()).build();
}

}  // namespace
}  // namespace mxd::test

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto bytes = mxd::test::document({arguments.begin() + 1, arguments.end()});
  std::ofstream file(arguments.front(), std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return file.flush() ? 0 : 1;
}
