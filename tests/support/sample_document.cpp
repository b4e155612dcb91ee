#include "support/sample_document.h"

#include "document/map.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/property_page.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"
#include "support/compound_builder.h"
#include "support/object_builder.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::test {
namespace {

constexpr const char* geographic_wkt =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],"
    "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";

std::string projected_wkt() {
  return std::string("PROJCS[\"WGS_1984_UTM_Zone_33N\",") + geographic_wkt +
         ",PROJECTION[\"Transverse_Mercator\"],UNIT[\"Meter\",1.0]]";
}

// A symbol's layers: the first locked, the last switched off, each with a tag.
Bytes layers(std::initializer_list<Bytes> symbols) {
  Bytes bytes = Bytes().i32(static_cast<std::int64_t>(symbols.size()));
  for (const Bytes& symbol : symbols) bytes.add(symbol);
  for (std::size_t i = 1; i <= symbols.size(); ++i) bytes.i32(i < symbols.size());
  for (std::size_t i = 0; i < symbols.size(); ++i) bytes.i32(i == 0);
  return bytes;
}

// One of every class at least, with values of its own.
class Sample_symbols : public Object_numbers {
 public:
  // A gray of that lightness.
  Bytes rgb_color(double lightness) {
    return object<Tmxd_rgb_color>(3, {run(3), lightness, 0.0, 0.0, byte(0), byte(0)});
  }

  Bytes hsv_color() {
    return object<Tmxd_hsv_color>(3, {run(3), 53.24, 80.09, 67.20, byte(0), byte(255)});
  }

  Bytes cmyk_color() {
    return object<Tmxd_cmyk_color>(
        3, {run(2), byte(0), byte(50), byte(100), byte(0), byte(1), byte(0)});
  }

  Bytes simple_marker() {
    return object<Tmxd_simple_marker_symbol>(
        2, {hsv_color(), 8.0, 4, trailer(), 45.0, 1.0, -1.0, byte(1), 0.5, rgb_color(0), run(2)});
  }

  Bytes char_marker() {
    constexpr int italic_and_struck_out = 2 | 8;
    return object<Tmxd_char_marker_symbol>(
        5, {rgb_color(50), 0x41, 30.0, 12.5, 2.0, -2.0, 0.0, 0.0, trailer(), word(65535), "Arial",
            0.0, 0.0, run(2), run(10), Bytes().guid(standard_font_id.guid),
            font_fields(1, 1, italic_and_struck_out, 12500, "Arial")});
  }

  Bytes arrow_marker() {
    return object<Tmxd_arrow_marker_symbol>(
        2, {rgb_color(10), 6.0, 4.0, 90.0, 0, trailer(), 0.0, 0.0, run(2)});
  }

  Bytes picture_marker() {
    return object<Tmxd_picture_marker_symbol>(9, {rgb_color(0), rgb_color(100), run(65)});
  }

  Bytes multilayer_marker() {
    return object<Tmxd_multilayer_marker_symbol>(
        3, {trailer(), 1.0, 2.0, 3.0, 4.0, rgb_color(20), 5, 6.0, simple_marker(),
            layers({char_marker(), arrow_marker(), picture_marker()}), 7.0, 8.0, "letter", "arrow",
            "picture"});
  }

  Bytes simple_line(double width) {
    return object<Tmxd_simple_line_symbol>(1, {rgb_color(60), width, 1, trailer()});
  }

  Bytes cartographic_line() {
    return object<Tmxd_cartographic_line_symbol>(
        2, {1, 2, 1.25, byte(1), -3.0, cmyk_color(), line_template(), line_decoration(), trailer(),
            byte(0), 10.0, 0.0});
  }

  Bytes hash_line() {
    return object<Tmxd_hash_line_symbol>(
        2, {60.0, 0, 0, 5.0, byte(1), 0.75, simple_line(0.25), rgb_color(30), line_template(),
            run(16), trailer(), byte(0), 10.0, 0.0});
  }

  Bytes marker_line() {
    return object<Tmxd_marker_line_symbol>(
        2, {byte(0), 2.5, simple_marker(), Bytes().null_object(), run(16), trailer(), run(25)});
  }

  Bytes multilayer_line() {
    return object<Tmxd_multilayer_line_symbol>(
        2, {trailer(), layers({simple_line(0.5), cartographic_line(), hash_line(), marker_line()}),
            "bank", "water", "hash", "marker"});
  }

  Bytes simple_fill() {
    return object<Tmxd_simple_fill_symbol>(1, {simple_line(0.4), rgb_color(90), trailer(), 0});
  }

  Bytes line_fill() {
    return object<Tmxd_line_fill_symbol>(
        2, {0.0, 0.0, simple_line(0.6), simple_line(0.7), 135.0, 1.0, 5.0, trailer()});
  }

  Bytes marker_fill() {
    return object<Tmxd_marker_fill_symbol>(
        2, {1, 3.0, 4.0, 10.0, 12.0, 0.0, 0.0, char_marker(), simple_line(0.8), trailer(), 0.0});
  }

  Bytes picture_fill() {
    return object<Tmxd_picture_fill_symbol>(
        8, {rgb_color(0), rgb_color(50), rgb_color(100), simple_line(0.9), run(87)});
  }

  Bytes multilayer_fill() {
    return object<Tmxd_multilayer_fill_symbol>(
        2,
        {trailer(), rgb_color(70), layers({line_fill(), picture_fill()}), "hatching", "picture"});
  }

 private:
  Bytes line_template() { return object<Tmxd_line_template>(1, {1.5, 2, 4.0, 1.0, 2.0, 3.0}); }

  Bytes line_decoration() {
    const Bytes element = object<Tmxd_simple_line_decoration_element>(
        1, {byte(0), byte(1), byte(0), run(2), arrow_marker(), 2, 0.0, 1.0});
    return object<Tmxd_line_decoration>(1, {1, element});
  }
};

class Sample : Sample_symbols {
 public:
  Bytes maps_stream() {
    Bytes content = object<Tmxd_projected_coordinate_system>(1, Bytes().narrow(projected_wkt()));
    content.add(group("Base map", 2)).add(rivers()).add(relief()).add(towns()).add(land_use());
    content.add(object<Tmxd_fdo_graphics_layer>(6, Bytes()));
    const int main_number = next_number();
    Bytes stream = Bytes().i32(3).add(map("Layers", content));
    stream.add(
        map("Inset", object<Tmxd_geographic_coordinate_system>(1, Bytes().narrow(geographic_wkt))));
    return stream.reference(Tmxd_map::clsid, main_number);
  }

 private:
  Bytes map(const char* name, const Bytes& content) {
    return object<Tmxd_map>(7, Bytes().wide(name).add(content));
  }

  Bytes group(const char* name, int members) {
    return object<Tmxd_group_layer>(5, {name, word(1), run(20), members, run(8)});
  }

  Bytes workspace(const char* name) { return object<Tmxd_workspace_name>(2, Bytes().wide(name)); }

  static Bytes feature_class(const char* name, const char* type, int geometry) {
    return Packed{name, run(6), type, "Shape", geometry, run(6)};
  }

  Bytes shapefile(const char* name, int geometry) {
    return object<Tmxd_feature_class_name>(
        2, feature_class(name, "Shapefile Feature Class", geometry));
  }

  Bytes feature_layer(const char* name, int visible, const Bytes& class_name,
                      const char* workspace_name, const Bytes& drawing) {
    return object<Tmxd_feature_layer>(9, {name, "Feature Layer", word(visible), run(4), class_name,
                                          workspace(workspace_name), drawing});
  }

  Bytes legend_class(const char* label, const Bytes& symbol) {
    return object<Tmxd_legend_class>(2, {symbol, label, run(26)});
  }

  Bytes legend_group(const char* heading, std::initializer_list<Bytes> classes) {
    Bytes fields = Bytes().i32(1).wide(heading).i32(static_cast<std::int64_t>(classes.size()));
    for (const Bytes& item : classes) fields.add(item);
    return object<Tmxd_legend_group>(1, fields);
  }

  // One symbol for all; the legend refers to it.
  Bytes rivers() {
    const Bytes symbol = multilayer_line();
    const Bytes again = reference<Tmxd_multilayer_line_symbol>(next_number() - 1);
    const Bytes legend = legend_group("", {legend_class("River", again)});
    const Bytes renderer = object<Tmxd_simple_renderer>(2, Bytes().add(symbol).add(legend));
    const Bytes system = object<Tmxd_unknown_coordinate_system>(1, Bytes().wide("Unknown"));
    return feature_layer("Rivers & canals", 0xFFFF, shapefile("rivers", 3), "C:\\data\\base",
                         Packed{renderer, Bytes().zeros(156), "NAME", 500000.0, 10000.0, system});
  }

  Bytes relief() {
    const Bytes name =
        object<Tmxd_raster_dataset_name>(1, {word(1), "relief.tif", "Raster Dataset", "", ""});
    return object<Tmxd_raster_layer>(
        4, {word(2), "Relief", run(18), name, workspace("C:\\data\\rasters")});
  }

  Bytes towns_class_name() {
    const Bytes dataset =
        object<Tmxd_feature_dataset_name>(1, {"Settlements", "Feature Dataset", "", "", byte(1)});
    return object<Tmxd_fgdb_feature_class_name>(
        1, {4, feature_class("towns", "File Geodatabase Feature Class", 1), dataset});
  }

  // A symbol for each pair of values.
  Bytes towns() {
    // Each with the index of its legend group and of its class in it.
    const Packed values{2, "capital, yes, 9", 1, 0, 0, "town, no, 5", 1, 1, 0};
    const Bytes separator = Bytes().i32(6).u16(',').u16(' ').u16(0);
    const Packed names{3, "KIND", run(3), "PORT", "SIZE", separator};
    const Packed other{simple_marker(), -1,
                       legend_group("Other", {legend_class("other places", simple_marker())})};
    const Bytes legend = legend_group("Kind, port", {legend_class("Capital", multilayer_marker()),
                                                     legend_class("Town", char_marker())});
    const Bytes renderer =
        object<Tmxd_unique_value_renderer>(4, {names, other, word(1), legend, run(18), values});
    const Packed drawing{renderer, Bytes().guid(Tmxd_unique_value_property_page::clsid.guid),
                         "NAME", 0.0, 0.0};
    return feature_layer("Towns", 0, towns_class_name(), "C:\\data\\town.gdb", drawing);
  }

  // A symbol for each range of a number.
  Bytes land_use() {
    const Packed ranges{3, 10.0, 50.0, 100.0, 0.0, 10.0, 50.0};
    const Bytes legend = legend_group("Share of woods", {legend_class("little", simple_fill()),
                                                         legend_class("some", marker_fill()),
                                                         legend_class("much", multilayer_fill())});
    const Bytes renderer =
        object<Tmxd_class_breaks_renderer>(4, {"WOODS", "", ranges, run(8), legend});
    const Packed drawing{renderer, Bytes().guid(Tmxd_graduated_color_property_page::clsid.guid),
                         "WOODS", 0.0, 0.0};
    return feature_layer("Land use", 1, shapefile("landuse", 4), "C:\\data\\base", drawing);
  }
};

}  // namespace

Byte_run sample_document() {
  Byte_run stream = Sample().maps_stream().data();
  return Compound_file()
      .storage("Layout")
      .stream("Thumbnail", noise(700))
      .stream("Maps", std::move(stream))
      .fragmented(3)
      .build();
}

}  // namespace mxd::test
