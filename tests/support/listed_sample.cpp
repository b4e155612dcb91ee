#include "support/listed_sample.h"

namespace mxd::test {
namespace {

Bytes map_system(const char* authority) {
  const std::string wkt = std::string("GEOGCS[\"G\",AUTHORITY[\"EPSG\",") + authority + "]]";
  return text("").object(Tmxd_geographic_coordinate_system::clsid, 60001, 7,
                         Bytes().narrow(wkt).zeros(115 - 24).f64s({1e-9, 0.001, 0.001}));
}

}  // namespace

Bytes listed_layer(const Listed_layer& layer) {
  Bytes drawing = layer.renderer;
  if (drawing.size() == 0) drawing = simple_renderer(layer.number + 3).zeros(156);
  return layer_record(
      layer.number, layer.name,
      Packed{feature_class(layer.number + 1, layer.dataset),
             workspace(layer.number + 2, layer.folder), drawing, "F", layer.scales, layer.rest});
}

Bytes listed_sample() {
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
  const Bytes roads = listed_layer({100,
                                    "Roads \"A\"",
                                    "roads.SHP",
                                    "\\\\server\\maps",
                                    Bytes().f64s({5000, 100}),
                                    {},
                                    definition_query(text("N = \"a, b\"")).add(shown).add(utm)});
  const Bytes farms = listed_layer({200, "Farms", "farms", "maps/land", Bytes().f64s({-1, 1e13}),
                                    breaks, definition_query(text("")).add(hidden)});
  const Bytes unknown_renderer = Bytes().object(unheard_of_id, 303, 1, run(8)).zeros(156);
  const Bytes ponds = listed_layer(
      {300, "Ponds", "ponds", "SERVER=db;USER=me", Bytes().f64s({0, 0}), unknown_renderer});
  // The search for the symbol finds the line after the renderer, which is not its own.
  const Bytes unknown_symbol = Bytes().object(unheard_of_id, 404, 1, run(8));
  const Bytes plain = labels(950, -1, label_class(951, text("[W]"), {}));
  const Bytes renderer = object<Tmxd_simple_renderer>(403, 1, unknown_symbol);
  const Bytes wells = listed_layer({400, "Wells", "wells", "D:\\town.gdb", Bytes().f64s({0, 0}),
                                    Packed{renderer, line_symbol(405, 1), Bytes().zeros(156)},
                                    definition_query(text("")).add(plain)});
  const Bytes inner = listed_group(500, "Inner", member_list({farms}));
  const Bytes again = reference<Tmxd_feature_layer>(100);
  const Bytes outer = listed_group(510, "Outer; \"old\"", member_list({roads, again, inner}));
  const Bytes services = basemap(
      520, "Images",
      member_list({foreign_layer(521, map_service_id, "Service"), image_service(522, "Heights")}));
  const Bytes unknown = foreign_layer(523, unheard_of_id, "Unknown");
  const Bytes broken = object<Tmxd_feature_layer>(530, 34, text("Broken").counting(40));
  const Bytes extents =
      Packed(envelope(540, {1, 2, 3.5, 4}), its_system(), envelope(541, {5, 6, 7, 8}));
  const Bytes layers = map_list({outer, ponds, services, unknown, broken, again});
  const Bytes all = map_system("4326").add(layers).counting(9).add(extents);
  const Bytes some = text("").null_object().i32(3).add(map_entries({wells}));
  const Bytes map = listed_map(1, "Land", all);
  return Bytes().i32(3).add(map).add(listed_map(2, "Town", some)).reference(Tmxd_map::clsid, 1);
}

}  // namespace mxd::test
