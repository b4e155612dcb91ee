// Writes one of the documents for the tests of mxdinfo:
//   make_documents FILE sample | gallery | facts | lossy | deep | long_paths | dashes
//   make_documents FILE named TEXTS
// The file of texts has in UTF-16LE that of every other name in the document, the workspace,
// dataset and feature dataset of its layer, and what follows the map.
#include <array>
#include <fstream>
#include <string>
#include <vector>

#include "support/compound_builder.h"
#include "support/listed_sample.h"
#include "support/sample_document.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::test {
namespace {

// A legend class for each symbol, without a value.
class Gallery : Object_numbers {
 public:
  Bytes maps() {
    add_markers();
    add_lines();
    add_fills();
    // Nothing that a search for their symbols may find follows these.
    add("hash line without a line", hatches({}, zeros));
    add("no symbol", {});
    const Bytes group = legend_group(take_number(), "", count_, legend_);
    const Bytes renderer =
        Bytes().object(Tmxd_unique_value_renderer::clsid, take_number(), 3,
                       Packed{1, "NAME", run(3), run(10), zeros, 0, group, Bytes().zeros(16), 0});
    const Bytes page = Bytes().guid(Tmxd_unique_value_property_page::clsid.guid);
    return in_map(layer_record(take_number(), "Symbols",
                               Packed{feature_class(take_number(), "symbols"),
                                      workspace(take_number(), ""), renderer, page, "", 0.0, 0.0}));
  }

 private:
  void add(const std::string& label, const Bytes& symbol) {
    legend_.add(legend_class(take_number(), 2, label.c_str(), symbol));
    ++count_;
  }

  // Gray, or a color that is not used.
  Bytes color(double lightness, int unused = 0) {
    return object<Tmxd_rgb_color>(1, {run(3), lightness, 0.0, 0.0, byte(0), byte(unused)});
  }

  Bytes marker(int style, double size, int outline = 1) {
    return object<Tmxd_simple_marker_symbol>(
        1, {color(40), size, style, trailer(), 30.0 * style, 1.0 * style, -2.0, byte(outline), 1.5,
            color(80), run(2)});
  }
  Bytes character(const char* font_name, int code, double size, double x) {
    return object<Tmxd_char_marker_symbol>(
        3, {color(20), code, 0.0, size, x, 0.0, 0.0, 0.0, trailer(), word(65535), font_name, 0.0,
            0.0, run(2), run(10)});
  }
  Bytes arrow(double length, double width) {
    return object<Tmxd_arrow_marker_symbol>(
        1, {color(30), length, width, 0.0, 0, trailer(), 5.0, -7.0, run(2)});
  }
  Bytes picture() {
    const Bytes placed = Bytes().f64s({15, 20, 3, 4}).zeros(16).trailer().zeros(9);
    return object<Tmxd_picture_marker_symbol>(1, {Bytes().zeros(32), placed});
  }
  // The topmost layer, which is the first, is switched off; the last one is locked.
  Bytes layered_marker() {
    const Bytes base = Packed{trailer(), 0.0, 0.0, 0.0, 0.0, color(5), 0, 0.0, marker(0, 3)};
    const Bytes layers = Packed{3, marker(0, 4, 0), arrow(9, 3), picture()};
    const Bytes enabled_and_locked = Packed{0, 1, 1, 0, 0, 1};
    return object<Tmxd_multilayer_marker_symbol>(2, {base, layers, enabled_and_locked, 0.0, 0.0});
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
    return object<Tmxd_simple_line_symbol>(1, {color(60), width, style, trailer()});
  }
  Bytes dashes() { return object<Tmxd_line_template>(1, {2.0, 2, 3.0, 1.0, 0.0, 2.5}); }
  Bytes decoration(int flip_first, int flip_all, int unfixed, const Bytes& positions) {
    const Bytes element = object<Tmxd_simple_line_decoration_element>(
        1, {byte(flip_first), byte(unfixed), byte(flip_all), run(2), arrow(4, 2), positions});
    return object<Tmxd_line_decoration>(1, {1, element});
  }
  Bytes road(int cap_and_join, double offset, const Bytes& pattern, const Bytes& decorations) {
    return object<Tmxd_cartographic_line_symbol>(
        1,
        {cap_and_join, cap_and_join, 2.0, byte(0), offset, color(50, cap_and_join == 0 ? 255 : 0),
         pattern, decorations, trailer(), byte(0), 10.0, 0.0});
  }
  Bytes hatches(const Bytes& symbol, const Bytes& pattern) {
    return object<Tmxd_hash_line_symbol>(1, {75.0, 1, 2, 6.0, byte(0), -1.5, symbol, color(10),
                                             pattern, run(16), trailer(), byte(0), 10.0, 0.0});
  }
  Bytes marker_line() {
    return object<Tmxd_marker_line_symbol>(
        1, {byte(0), 1.0, arrow(5, 3), zeros, run(16), trailer(), run(25)});
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
    return object<Tmxd_simple_fill_symbol>(1, {outline, color(90, unused), trailer(), 0});
  }
  Bytes hatched_fill() {
    return object<Tmxd_line_fill_symbol>(
        1, {0.0, 0.0, line(0, 0.5), line(), 30.0, 2.0, 6.0, trailer()});
  }
  Bytes marker_fill(int random) {
    return object<Tmxd_marker_fill_symbol>(
        1, {random, 3.0, 4.0, 20.0, 12.0, 0.0, 0.0, marker(1, 4, 0), line(), trailer(), 0.0});
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
  Bytes legend_;
  int count_ = 0;
};

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
  return object<Tmxd_feature_class_name>(
      6, 1,
      {Bytes().wide(data.dataset), Bytes().zeros(6), type, type, 1, Bytes().zeros(6), holder});
}

Bytes named(const Wide_string& name, const Data& data) {
  const Bytes wide = Bytes().wide(name);
  const Bytes color = rgb_color(1, 50);
  const Bytes marker = object<Tmxd_char_marker_symbol>(
      2, 3,
      {color, 0x41, 0.0, 8.0, 0.0, 0.0, 0.0, 0.0, trailer(), word(65535), wide, Bytes().zeros(28)});
  const Bytes again = reference<Tmxd_char_marker_symbol>(2);
  const Bytes item = object<Tmxd_legend_class>(3, 2, {again, wide, Bytes().zeros(26)});
  const Bytes legend = object<Tmxd_legend_group>(4, 1, {0, wide, 1, item});
  const Bytes renderer = object<Tmxd_simple_renderer>(5, 1, {marker, legend});
  const Bytes folder = object<Tmxd_workspace_name>(7, 1, Bytes().wide(data.workspace));
  const std::string wkt = "GEOGCS[\"" + to_narrow(name) + "\",UNIT[\"Degree\",0.0174532925199433]]";
  const Bytes layer = Bytes().object(
      Tmxd_feature_layer::clsid, 8, 1,
      Packed{wide, wide, word(0xFFFF), Bytes().zeros(4), data_name(wide, data), folder, renderer,
             Bytes().zeros(156), "", 50000.0, 0.0, geographic(9, wkt.substr(0, 9998))});
  const Bytes group =
      object<Tmxd_group_layer>(10, 1, {wide, word(1), Bytes().zeros(20), 1, Bytes().zeros(8)});
  return Bytes().i32(1).object(Tmxd_map::clsid, 11, 1, Packed{wide, group, layer});
}

// A map whose only layer cannot be decoded.
Bytes lossy() {
  const Bytes layer = object<Tmxd_feature_layer>(1, 1, Bytes().i32(99999));
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
    layers.add(listed_layer({100 + 10 * i, "a", "a", "a", Bytes().f64s({-1, 0})}));
  }
  return in_map(layers);
}

// A line with 4000 dashes.
Bytes dashes() {
  Bytes pattern = Bytes().f64(1).i32(4000);
  for (int i = 0; i < 4000; ++i) pattern.f64s({1, 0});
  return in_simple_renderer(object<Tmxd_cartographic_line_symbol>(
      1, 1,
      {0, 0, 1.0, byte(0), 0.0, rgb_color(2, 50), object<Tmxd_line_template>(3, 1, pattern),
       Bytes().null_object(), trailer(), byte(0), 0.0, 0.0}));
}

// Of the file's texts four end with a NUL each.
Bytes named(const std::string& file_name) {
  std::array<Wide_string, 5> texts;
  std::size_t at = 0;
  std::ifstream file(file_name, std::ios::binary);
  for (std::array<char, 2> unit; file.read(unit.data(), 2);) {
    const int low = static_cast<unsigned char>(unit[0]);
    const int high = static_cast<unsigned char>(unit[1]);
    if (low + high == 0 && at < 4) {
      ++at;
    } else {
      texts[at].push_back(static_cast<Wide_char>(low + 256 * high));
    }
  }
  Bytes bytes = named(texts[0], {texts[1], texts[2], texts[3]});
  for (const Wide_char unit : texts[4]) bytes.u16(unit);
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
                     : kind == "facts"      ? listed_sample()
                     : kind == "lossy"      ? lossy()
                     : kind == "deep"       ? deep()
                     : kind == "long_paths" ? long_paths()
                     : kind == "dashes"     ? dashes()
                                            : named(texts.at(1));
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
