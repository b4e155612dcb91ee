#include "core/number_text.h"
#include "outline/outlined.h"

namespace mxd::test {
namespace {

// What a feature layer is without the data that it needs to be read.
Bytes broken_layer(int number, const char* name) {
  return object<Tmxd_feature_layer>(number, 34, text(name).counting(40));
}

// A list where there is none: one member, of a length that fits, but not of a class.
Bytes false_list() {
  return Bytes().i32(1).i32(40).i32(0).counting(60, 0xC0);
}

std::vector<Row> rows() {
  const Bytes a = named_feature_layer(10, "a");
  const Bytes b = named_feature_layer(20, "b");
  const Bytes c = named_feature_layer(30, "c");
  const Bytes service = foreign_layer(40, map_service_id, "service");
  const Bytes known = before_list();
  const Bytes no_system = text("").null_object();
  const Bytes again = reference<Tmxd_feature_layer>(10);
  const Bytes nested = listed_group(50, "g",
                                    member_list({a, listed_group(51, "h", member_list({b})),
                                                 basemap(52, "m", member_list({service}))}));
  const Bytes raster = object<Tmxd_raster_layer>(60, 17, Bytes().u16(2).add(text("r")).zeros(30));
  const Bytes of_unread_class =
      Bytes().object(unheard_of_id, 61, 3, Bytes().u16(7).add(text("x")).zeros(30));
  return {
      {"empty", Packed(known, map_list({}))},
      {"in order", Packed(known, map_list({a, b, c}))},
      {"nested", Packed(known, map_list({nested, c}))},
      {"without coordinate system", Packed(no_system, map_list({a, b}))},
      {"after a coordinate system of another version",
       Packed(before_list(8), map_list({a, service, b}))},
      {"of classes that are not decoded",
       Packed(known, map_list({image_service(41, "i"), of_unread_class, service}))},
      {"that could not be read", Packed(known, map_list({broken_layer(42, "broken"), raster, a}))},
      {"again", Packed(known, map_list({a, again, b}))},
      {"again, in no list", Packed(known, map_list({a}), again)},
      {"elsewhere", Packed(known, 3, Bytes().zeros(40))},
      {"in another place, where nothing else shows that it is a list",
       Packed(no_system, 3, Bytes().zeros(40))},
      {"cut after the first", Packed(known, 3, map_entries({a}), word(2), 99, 1)},
      {"of a kind that no list has", Packed(known, 2, map_entries({a}), word(4), length_of(b), b)},
      {"cut in a group",
       Packed(known, map_list({listed_group(50, "g", Packed(2, members({a}), 0, 0)), b}))},
      {"in a layer of an unknown class",
       Packed(known, map_list({foreign_layer(45, unheard_of_id, "x", a), b}))},
      {"of a basemap after what looks like a list",
       Packed(known, map_list({basemap(52, "m", false_list().add(member_list({service})))}))},
      {"of a basemap without a list", Packed(known, map_list({basemap(52, "m", run(80)), a}))},
      {"counted by a group", Packed(group_layer(50, "g", 2), group_layer(51, "h", 1), a, b)},
  };
}

TEST(Outline, layers) {
  expect_rows("layers", rows(), [](const Bytes& after_name) {
    const Outlined outlined(one_map(after_name));
    const auto counted = outlined.map().counted_layers;
    return layers_text(outlined.map()) + " (" + (counted ? int_text(*counted) : "none") +
           " counted, " + std::to_string(outlined.map().missing_layers()) + " missing)";
  });
}

TEST(Outline, maps_end_where_the_next_one_begins) {
  const Bytes first =
      listed_map(1, "first", Bytes(before_list()).add(map_list({named_feature_layer(10, "a")})));
  const Bytes second = listed_map(
      2, "second", Bytes(text("")).null_object().add(map_list({named_feature_layer(20, "b")})));
  const Bytes again = reference<Tmxd_map>(1).counting(30);
  const Outlined outlined(Bytes().i32(2).add(first).add(again).add(second).add(again));
  ASSERT_EQ(outlined.outline.maps.size(), 2U);
  const Map_outline& map = outlined.outline.maps[0];
  EXPECT_EQ(map.position, 4U);
  EXPECT_EQ(map.decoded_end, 4 + first.size());
  EXPECT_EQ(map.end, 4 + first.size() + again.size());
  EXPECT_EQ(outlined.outline.maps[1].position, map.end);
  EXPECT_EQ(layers_text(map), "a");
  EXPECT_EQ(layers_text(outlined.outline.maps[1]), "b");
}

TEST(Outline, records_say_where_and_what_a_layer_is) {
  const Bytes layer = named_feature_layer(10, "a");
  const Bytes entry = Bytes(before_list()).add(map_list({layer}));
  const Outlined outlined(one_map(entry));
  const Layer_record& record = outlined.map().records.at(0);
  const std::size_t start = 4 + 22 + text("map").size() + entry.size() - layer.size();
  EXPECT_EQ(record.position, start);
  EXPECT_EQ(record.length, layer.size());
  EXPECT_EQ(record.number, 10);
  EXPECT_EQ(record.layer, &outlined.document.maps[0].layers[0]);
  EXPECT_EQ(record.counted_members, std::nullopt);
}

TEST(Outline, every_prefix_of_a_stream_is_harmless) {
  const Bytes whole = one_map(
      Bytes(before_list())
          .add(map_list({listed_group(50, "g", member_list({named_feature_layer(10, "a")})),
                         basemap(52, "m", member_list({foreign_layer(40, map_service_id, "s")})),
                         image_service(41, "i")})));
  for (std::size_t length = 4; length <= whole.size(); ++length) Outlined{whole.prefix(length)};
}

}  // namespace
}  // namespace mxd::test
