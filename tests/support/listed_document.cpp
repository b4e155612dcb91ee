// A document as ArcMap 10 writes it: its layers are listed with their lengths, among them some that
// are not decoded, and much follows the fields of a layer.
#include "support/compound_builder.h"
#include "support/outline_records.h"
#include "support/sample_document.h"

namespace mxd::test {
namespace {

Bytes listed_feature_layer(int number, const char* name, const Bytes& drawing, const Bytes& rest) {
  const Bytes fields =
      text(name).add(text("Feature Layer")).u16(-1).zeros(4).add(feature_class(number + 1, name));
  return Bytes().object(Tmxd_feature_layer::clsid, number, 34,
                        Bytes(fields)
                            .add(workspace(number + 2, "D:\\city"))
                            .add(drawing)
                            .wide("NAME")
                            .f64s({25000, 0})
                            .add(rest));
}

Bytes line(int number, double lightness, double width) {
  return Bytes().object(simple_line_id, number, 1,
                        rgb_color(number + 1, lightness).f64(width).i32(2).trailer());
}

// Labelled in two ways.
Bytes streets() {
  const Bytes names =
      label_class(31, text("[NAME]"), text_symbol(32, rgb_color(33, 50), font("Arial", 8, 8.25)));
  const Bytes numbers = label_class(34, text("[NAME] & \" (\" & [NO] & \")\""),
                                    text_symbol(35, rgb_color(36, 100), font("Verdana", 10, 10)));
  return listed_feature_layer(
      20, "Streets", simple_renderer(23, line(25, 20, 1.5)).zeros(156),
      definition_query(text("\"WIDTH\" > 3")).add(labels(30, -1, Bytes(names).add(numbers), 2)));
}

// The legend has the highest range first.
Bytes density() {
  const Bytes classes = legend_class(46, 2, "10 - 20", line(52, 10, 2))
                            .add(legend_class(48, 2, "0 - 10", line(54, 90, 1)));
  const Bytes renderer = Bytes().object(Tmxd_class_breaks_renderer::clsid, 43, 2,
                                        text("PEOPLE")
                                            .wide("")
                                            .i32(2)
                                            .f64s({10, 20, 0, 10})
                                            .zeros(8)
                                            .add(legend_group(44, "People per area", 2, classes)));
  return listed_feature_layer(
      40, "Density",
      Bytes(renderer)
          .add(normalization(number_format(49), text("AREA"), 0))
          .guid(Tmxd_graduated_color_property_page::clsid.guid),
      definition_query(text("")).add(labels(50, 0, label_class(51, text("[NAME]"), {}))));
}

Bytes maps_stream() {
  // Its name has no end.
  const Bytes broken =
      Bytes().object(Tmxd_feature_layer::clsid, 60, 34, text("Parcels").i32(99999).counting(40));
  const Bytes services = basemap(
      70, "World imagery",
      member_list({foreign_layer(71, map_service_id, "Imagery"), image_service(72, "Elevation")}));
  const Bytes list = map_list({streets(), listed_group(39, "Statistics", member_list({density()})),
                               services, foreign_layer(73, unheard_of_id, "Utilities"), broken});
  const Bytes shown = envelope(80, {12.5, 41.25, 12.75, 41.5})
                          .add(its_system())
                          .add(envelope(81, {0, 0, 21, 29.7}));
  return Bytes().i32(1).add(
      listed_map(1, "City", before_list().add(list).counting(9).add(shown).zeros(20)));
}

Bytes metadata() {
  Bytes bytes = Bytes().u16(4);
  for (const char* entry :
       {"City plan", "Survey office", "All layers", "A plan", "", "streets, city"}) {
    bytes.add(text(entry));
  }
  bytes.i32(0);
  for (const char* entry :
       {"http://city.example", "", "Survey office 2018", "D:\\plans\\city.mxd"}) {
    bytes.add(text(entry));
  }
  return bytes.f64(43124.5).zeros(20);
}

}  // namespace

Byte_run listed_document() {
  return Compound_file()
      .stream("Version", Bytes().wide("10.6").i32(7).data())
      .stream("Metadata", metadata().data())
      .stream("Maps", maps_stream().data())
      .build();
}

}  // namespace mxd::test
