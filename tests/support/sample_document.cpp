#include "support/sample_document.h"

#include "document/map.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/property_page.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"
#include "support/compound_builder.h"
#include "support/sample_symbols.h"

namespace mxd::test {
namespace {

constexpr const char* geographic_wkt =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],"
    "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";

std::string projected_wkt() {
  return std::string("PROJCS[\"WGS_1984_UTM_Zone_33N\",") + geographic_wkt +
         ",PROJECTION[\"Transverse_Mercator\"],UNIT[\"Meter\",1.0]]";
}

class Sample {
 public:
  Bytes maps_stream() {
    Bytes content =
        numbers_.object<Tmxd_projected_coordinate_system>(1, Bytes().narrow(projected_wkt()));
    content.add(group("Base map", 2)).add(rivers()).add(relief()).add(towns()).add(land_use());
    content.add(numbers_.object<Tmxd_fdo_graphics_layer>(6, Bytes()));
    const int main_number = numbers_.next();
    Bytes stream = Bytes().i32(3).add(map("Layers", content));
    stream.add(map("Inset", numbers_.object<Tmxd_geographic_coordinate_system>(
                                1, Bytes().narrow(geographic_wkt))));
    return stream.reference(Tmxd_map::clsid, main_number);
  }

 private:
  Bytes map(const char* name, const Bytes& content) {
    return numbers_.object<Tmxd_map>(7, Bytes().wide(name).add(content));
  }

  Bytes group(const char* name, int members) {
    return numbers_.object<Tmxd_group_layer>(5, Packed{name, word(1), run(20), members, run(8)});
  }

  Bytes workspace(const char* name) {
    return numbers_.object<Tmxd_workspace_name>(2, Bytes().wide(name));
  }

  static Bytes feature_class(const char* name, const char* type, int geometry) {
    return Packed{name, run(6), type, "Shape", geometry, run(6)};
  }

  Bytes shapefile(const char* name, int geometry) {
    return numbers_.object<Tmxd_feature_class_name>(
        2, feature_class(name, "Shapefile Feature Class", geometry));
  }

  Bytes feature_layer(const char* name, int visible, const Bytes& class_name,
                      const char* workspace_name, const Bytes& drawing) {
    return numbers_.object<Tmxd_feature_layer>(
        9, Packed{name, "Feature Layer", word(visible), run(4), class_name,
                  workspace(workspace_name), drawing});
  }

  Bytes legend_class(const char* label, const Bytes& symbol) {
    return numbers_.object<Tmxd_legend_class>(2, Packed{symbol, label, run(26)});
  }

  Bytes legend_group(const char* heading, std::initializer_list<Bytes> classes) {
    Bytes fields = Bytes().i32(1).wide(heading).i32(static_cast<std::int64_t>(classes.size()));
    for (const Bytes& item : classes) fields.add(item);
    return numbers_.object<Tmxd_legend_group>(1, fields);
  }

  // One symbol for all; the legend refers to it.
  Bytes rivers() {
    const Bytes symbol = symbols_.multilayer_line();
    const Bytes again = Bytes().reference(Tmxd_multilayer_line_symbol::clsid, numbers_.next() - 1);
    const Bytes legend = legend_group("", {legend_class("River", again)});
    const Bytes renderer =
        numbers_.object<Tmxd_simple_renderer>(2, Bytes().add(symbol).add(legend));
    const Bytes system =
        numbers_.object<Tmxd_unknown_coordinate_system>(1, Bytes().wide("Unknown"));
    return feature_layer("Rivers & canals", 0xFFFF, shapefile("rivers", 3), "C:\\data\\base",
                         Packed{renderer, Bytes().zeros(156), "NAME", 500000.0, 10000.0, system});
  }

  Bytes relief() {
    const Bytes name = numbers_.object<Tmxd_raster_dataset_name>(
        1, Packed{word(1), "relief.tif", "Raster Dataset", "", ""});
    return numbers_.object<Tmxd_raster_layer>(
        4, Packed{word(2), "Relief", run(18), name, workspace("C:\\data\\rasters")});
  }

  Bytes towns_class_name() {
    const Bytes dataset = numbers_.object<Tmxd_feature_dataset_name>(
        1, Packed{"Settlements", "Feature Dataset", "", "", byte(1)});
    return numbers_.object<Tmxd_fgdb_feature_class_name>(
        1, Packed{4, feature_class("towns", "File Geodatabase Feature Class", 1), dataset});
  }

  // A symbol for each pair of values.
  Bytes towns() {
    // Each with the index of its legend group and of its class in it.
    const Packed values{2, "capital, yes, 9", 1, 0, 0, "town, no, 5", 1, 1, 0};
    const Bytes separator = Bytes().i32(6).u16(',').u16(' ').u16(0);
    const Packed names{3, "KIND", run(3), "PORT", "SIZE", separator};
    const Packed other{
        symbols_.simple_marker(), -1,
        legend_group("Other", {legend_class("other places", symbols_.simple_marker())})};
    const Bytes legend =
        legend_group("Kind, port", {legend_class("Capital", symbols_.multilayer_marker()),
                                    legend_class("Town", symbols_.char_marker())});
    const Bytes renderer = numbers_.object<Tmxd_unique_value_renderer>(
        4, Packed{names, other, word(1), legend, run(18), values});
    const Packed drawing{renderer, Bytes().guid(Tmxd_unique_value_property_page::clsid.guid),
                         "NAME", 0.0, 0.0};
    return feature_layer("Towns", 0, towns_class_name(), "C:\\data\\town.gdb", drawing);
  }

  // A symbol for each range of a number.
  Bytes land_use() {
    const Packed ranges{3, 10.0, 50.0, 100.0, 0.0, 10.0, 50.0};
    const Bytes legend =
        legend_group("Share of woods", {legend_class("little", symbols_.simple_fill()),
                                        legend_class("some", symbols_.marker_fill()),
                                        legend_class("much", symbols_.multilayer_fill())});
    const Bytes renderer =
        numbers_.object<Tmxd_class_breaks_renderer>(4, Packed{"WOODS", "", ranges, run(8), legend});
    const Packed drawing{renderer, Bytes().guid(Tmxd_graduated_color_property_page::clsid.guid),
                         "WOODS", 0.0, 0.0};
    return feature_layer("Land use", 1, shapefile("landuse", 4), "C:\\data\\base", drawing);
  }

  Object_numbers numbers_;
  Sample_symbols symbols_{numbers_};
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
