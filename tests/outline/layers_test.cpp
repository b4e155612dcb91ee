#include "outline/outlined.h"

namespace mxd::test {
namespace {

// What a feature layer is without the data that it needs to be read.
Bytes broken_layer(int number, const char* name) {
  return Bytes().object(Tmxd_feature_layer::clsid, number, 34, text(name).counting(40));
}

// A list where there is none: one member, of a length that fits, but not of a class.
Bytes false_list() {
  return Bytes().i32(1).i32(40).i32(0).counting(60, 0xC0);
}

constexpr int none = -1;

struct Case {
  const char* what;
  Bytes after_name;
  std::string_view layers;
  int counted = none;
  int missing = 0;
};

std::vector<Case> cases() {
  const Bytes a = named_feature_layer(10, "a");
  const Bytes b = named_feature_layer(20, "b");
  const Bytes c = named_feature_layer(30, "c");
  const Bytes service = foreign_layer(40, map_service_id, "service");
  const Bytes known = before_list();
  const Bytes nested = listed_group(50, "g",
                                    member_list({a, listed_group(51, "h", member_list({b})),
                                                 basemap(52, "m", member_list({service}))}));
  const Bytes raster =
      Bytes().object(Tmxd_raster_layer::clsid, 60, 17, Bytes().u16(2).add(text("r")).zeros(30));
  const Bytes of_unread_class =
      Bytes().object(unheard_of_id, 61, 3, Bytes().u16(7).add(text("x")).zeros(30));
  return {
      {"empty", Bytes(known).add(map_list({})), "", 0},
      {"in order", Bytes(known).add(map_list({a, b, c})), "a, b, c", 3},
      {"nested", Bytes(known).add(map_list({nested, c})),
       "g, g/a, g/h, g/h/b, g/m?, g/m/service?, c", 2},
      {"without coordinate system", Bytes(text("")).null_object().add(map_list({a, b})), "a, b", 2},
      {"after a coordinate system of another version",
       before_list(8).add(map_list({a, service, b})), "a, service?, b", 3},
      {"of classes that are not decoded",
       Bytes(known).add(map_list({image_service(41, "i"), of_unread_class, service})),
       "i?, x?, service?", 3},
      {"that could not be read",
       Bytes(known).add(map_list({broken_layer(42, "broken"), raster, a})), "broken!, r!, a", 3},
      {"again",
       Bytes(known).add(map_list({a, Bytes().reference(Tmxd_feature_layer::clsid, 10), b})),
       "a, &, b", 3},
      {"again, in no list",
       Bytes(known).add(map_list({a})).reference(Tmxd_feature_layer::clsid, 10), "a, *&", 1},
      {"elsewhere", Bytes(known).i32(3).zeros(40), "", 3, 3},
      {"in another place, where nothing else shows that it is a list",
       Bytes(text("")).null_object().i32(3).zeros(40), ""},
      {"cut after the first", Bytes(known).i32(3).add(map_entries({a})).u16(2).i32(99).i32(1), "a",
       3, 2},
      {"of a kind that no list has",
       Bytes(known).i32(2).add(map_entries({a})).u16(4).add(length_of(b)).add(b), "a, b*", 2, 1},
      {"cut in a group",
       Bytes(known).add(
           map_list({listed_group(50, "g", Bytes().i32(2).add(members({a})).zeros(8)), b})),
       "g, g/a, b", 2, 1},
      {"in a layer of an unknown class",
       Bytes(known).add(map_list({foreign_layer(45, unheard_of_id, "x", a), b})), "x?, x/a*, b", 2},
      {"of a basemap after what looks like a list",
       Bytes(known).add(map_list({basemap(52, "m", false_list().add(member_list({service})))})),
       "m?, m/service?", 1},
      {"of a basemap without a list",
       Bytes(known).add(map_list({basemap(52, "m", Bytes().counting(80)), a})), "m?, a", 2},
      {"counted by a group", group_layer(50, "g", 2).add(group_layer(51, "h", 1)).add(a).add(b),
       "g*, g/h*, g/h/a*, g/b*"},
  };
}

TEST(Outline, layers) {
  for (const Case& c : cases()) {
    SCOPED_TRACE(c.what);
    const Outlined outlined(one_map(c.after_name));
    EXPECT_EQ(layers_text(outlined.map()), c.layers);
    EXPECT_EQ(outlined.map().counted_layers.value_or(none), c.counted);
    EXPECT_EQ(outlined.map().missing_layers(), c.missing);
  }
}

TEST(Outline, maps_end_where_the_next_one_begins) {
  const Bytes first =
      listed_map(1, "first", Bytes(before_list()).add(map_list({named_feature_layer(10, "a")})));
  const Bytes second = listed_map(
      2, "second", Bytes(text("")).null_object().add(map_list({named_feature_layer(20, "b")})));
  const Bytes again = Bytes().reference(Tmxd_map::clsid, 1).counting(30);
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

TEST(Outline, kinds_in_words) {
  EXPECT_EQ(kind_in_words(Tmxd_group_layer::clsid.guid), "group layer");
  EXPECT_EQ(kind_in_words(Tmxd_fdo_graphics_layer::clsid.guid), "graphics layer");
  EXPECT_EQ(kind_in_words(basemap_id.guid), "basemap layer");
  EXPECT_EQ(kind_in_words(map_service_id.guid), "map service layer");
  EXPECT_EQ(kind_in_words(image_service_id.guid), "image service layer");
  EXPECT_EQ(kind_in_words(unheard_of_id.guid),
            "layer of an unknown kind, class A4BADC1B-EBED-4A29-99DC-C6334DE352AD");
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
