#include "support/sample_document.h"

#include "document/map.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/property_page.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"
#include "support/compound_builder.h"
#include "support/sample_symbols.h"
#include "symbology/line_symbols.h"

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
    return numbers_.object<Tmxd_group_layer>(
        5, Bytes().wide(name).u16(1).counting(20).i32(members).counting(8));
  }

  Bytes workspace(const char* name) {
    return numbers_.object<Tmxd_workspace_name>(2, Bytes().wide(name));
  }

  static Bytes feature_class(const char* name, const char* type, int geometry) {
    return Bytes().wide(name).counting(6).wide(type).wide("Shape").i32(geometry).counting(6);
  }

  Bytes shapefile(const char* name, int geometry) {
    return numbers_.object<Tmxd_feature_class_name>(
        2, feature_class(name, "Shapefile Feature Class", geometry));
  }

  Bytes feature_layer(const char* name, int visible, const Bytes& class_name,
                      const char* workspace_name, const Bytes& drawing) {
    return numbers_.object<Tmxd_feature_layer>(9, Bytes()
                                                      .wide(name)
                                                      .wide("Feature Layer")
                                                      .u16(visible)
                                                      .counting(4)
                                                      .add(class_name)
                                                      .add(workspace(workspace_name))
                                                      .add(drawing));
  }

  Bytes legend_class(const char* label, const Bytes& symbol) {
    return numbers_.object<Tmxd_legend_class>(2, Bytes().add(symbol).wide(label).counting(26));
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
    return feature_layer(
        "Rivers & canals", 0xFFFF, shapefile("rivers", 3), "C:\\data\\base",
        Bytes().add(renderer).zeros(156).wide("NAME").f64s({500000, 10000}).add(system));
  }

  Bytes relief() {
    const Bytes name = numbers_.object<Tmxd_raster_dataset_name>(
        1, Bytes().u16(1).wide("relief.tif").wide("Raster Dataset").wide("").wide(""));
    return numbers_.object<Tmxd_raster_layer>(
        4,
        Bytes().u16(2).wide("Relief").counting(18).add(name).add(workspace("C:\\data\\rasters")));
  }

  Bytes towns_class_name() {
    const Bytes dataset = numbers_.object<Tmxd_feature_dataset_name>(
        1, Bytes().wide("Settlements").wide("Feature Dataset").wide("").wide("").u8(1));
    const Bytes fields = Bytes()
                             .i32(4)
                             .add(feature_class("towns", "File Geodatabase Feature Class", 1))
                             .add(dataset);
    return numbers_.object<Tmxd_fgdb_feature_class_name>(1, fields);
  }

  // A symbol for each pair of values.
  Bytes towns() {
    const Bytes values = Bytes()
                             .i32(2)
                             .wide("capital,yes,9")
                             .i32(10)
                             .i32(11)
                             .i32(12)
                             .wide("town,no,5")
                             .i32(-1)
                             .i32(-1)
                             .i32(2)
                             .wide("passed over");
    Bytes fields = Bytes().i32(3).wide("KIND").counting(3).wide("PORT").wide("SIZE").counting(10);
    fields.add(symbols_.simple_marker()).i32(-1);
    fields.add(legend_group("Other", {legend_class("other places", symbols_.simple_marker())}));
    fields.u16(1).add(
        legend_group("Kind, port", {legend_class("Capital", symbols_.multilayer_marker()),
                                    legend_class("Town", symbols_.char_marker())}));
    fields.counting(18).add(values);
    const Bytes renderer = numbers_.object<Tmxd_unique_value_renderer>(4, fields);
    const Bytes drawing = Bytes()
                              .add(renderer)
                              .guid(Tmxd_unique_value_property_page::clsid.guid)
                              .wide("NAME")
                              .f64s({0, 0});
    return feature_layer("Towns", 0, towns_class_name(), "C:\\data\\town.gdb", drawing);
  }

  // A symbol for each range of a number.
  Bytes land_use() {
    const Bytes ranges = Bytes().i32(3).f64s({10, 50, 100}).f64s({0, 10, 50});
    const Bytes legend =
        legend_group("Share of woods", {legend_class("little", symbols_.simple_fill()),
                                        legend_class("some", symbols_.marker_fill()),
                                        legend_class("much", symbols_.multilayer_fill())});
    const Bytes renderer = numbers_.object<Tmxd_class_breaks_renderer>(
        4, Bytes().wide("WOODS").wide("").add(ranges).counting(8).add(legend));
    const Bytes drawing = Bytes()
                              .add(renderer)
                              .guid(Tmxd_graduated_color_property_page::clsid.guid)
                              .wide("WOODS")
                              .f64s({0, 0});
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
