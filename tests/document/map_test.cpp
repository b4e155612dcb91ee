#include <gtest/gtest.h>

#include "core/read_helpers.h"
#include "support/document_records.h"
#include "support/golden.h"

namespace mxd::test {
namespace {

// The layers of one map that holds this.
struct Loaded {
  explicit Loaded(const Bytes& bytes) : decoder(bytes) {
    ok = read_all_found(maps, decoder.stream, -1, -1);
  }

  Decoder decoder;
  Tmxd_maps maps;
  bool ok;
};

std::vector<std::string> layer_names(const Tmxd_map& map) {
  std::vector<std::string> names;
  for (const auto& layer : map.layers) names.push_back(to_narrow(layer->layer_name));
  return names;
}

using Names = std::vector<std::string>;

TEST(Layers, group_raster_and_graphics_are_read_and_shown) {
  const auto raster_layer = [](int number, const Bytes& data) {
    return Bytes().object(Tmxd_raster_layer::clsid, number, 1,
                          Bytes().u16(65535).wide("image").counting(18).add(data));
  };
  const Bytes dataset = Bytes().object(Tmxd_raster_dataset_name::clsid, 3, 1,
                                       Bytes().u16(0).wide("r").wide("").wide("").wide(""));
  const Bytes raster = raster_layer(2, Bytes().zeros(1).add(dataset).add(workspace(4, "w")));
  const Bytes graphics = Bytes().object(Tmxd_fdo_graphics_layer::clsid, 5, 6, Bytes());
  const Bytes layers =
      group_layer(1, "g", 2).add(raster).add(graphics).add(raster_layer(7, workspace(8, "w")));
  const Loaded loaded(map_record(9, "m", layers));
  ASSERT_EQ(1U, loaded.maps.size());
  EXPECT_EQ(4U, loaded.maps[0].layers.size());
  expect_golden("document", "layers", loaded.maps[0]);
  expect_prefixes_fail<Tmxd_group_layer>(group_layer(1, "g", 2));
  expect_prefixes_fail<Tmxd_raster_layer>(raster);
}

TEST(Maps, end_where_the_next_one_begins) {
  const Loaded loaded(Bytes()
                          .raw("odd")
                          .add(map_record(1, "first", group_layer(2, "a", 0)))
                          .add(map_record(3, "second",
                                          Bytes()
                                              .add(group_layer(4, "b", 1))
                                              .add(group_layer(5, "c", 0))
                                              .add(geographic(6, "G")))));
  ASSERT_EQ(2U, loaded.maps.size());
  EXPECT_EQ(Names({"a"}), layer_names(loaded.maps[0]));
  EXPECT_EQ(Names({"b", "c"}), layer_names(loaded.maps[1]));
  EXPECT_EQ(nullptr, loaded.maps[0].coordinate_system.get());
  EXPECT_STREQ("G", loaded.maps[1].coordinate_system.get()->get_wkt());
}

TEST(Maps, without_layers_and_coordinate_system) {
  const Loaded loaded(map_record(1, "empty", Bytes()));
  expect_golden("document", "empty map", loaded.maps[0]);
  const Loaded none(Bytes().zeros(40));
  EXPECT_TRUE(none.ok);
  EXPECT_TRUE(none.maps.empty());
}

TEST(Maps, one_that_fails_costs_only_itself) {
  const Bytes broken = Bytes().object(Tmxd_map::clsid, 1, 1, Bytes().i32(10001));
  const Loaded loaded(Bytes()
                          .add(broken)
                          .add(map_record(2, "kept", group_layer(3, "layer", 0)))
                          .add(Bytes().reference(Tmxd_map::clsid, 2)));
  ASSERT_EQ(2U, loaded.maps.size());
  EXPECT_EQ("kept", to_narrow(loaded.maps[0].name));
  // A reference to a map names it, and holds nothing of it.
  EXPECT_EQ(1, loaded.maps[1].repeat);
  EXPECT_TRUE(loaded.maps[1].layers.empty());
  EXPECT_EQ(Names({"ERROR IN 1 mxd_map  0"}), loaded.decoder.errors.lines);
}

TEST(Layers, what_a_dropped_layer_held_can_still_be_referred_to) {
  // The first layer ends after its feature class name; the second refers to that name.
  const Bytes dropped = layer_record(10, "dropped", feature_class(11, "roads").zeros(30));
  const Bytes kept = layer_record(
      12, "kept",
      Bytes().reference(Tmxd_feature_class_name::clsid, 11).add(workspace(13, "place")));
  const Loaded loaded(map_record(1, "m", Bytes(dropped).add(kept)));
  ASSERT_EQ(Names({"kept"}), layer_names(loaded.maps[0]));
  const auto& layer = dynamic_cast<const Tmxd_feature_layer&>(loaded.maps[0].layers[0]);
  EXPECT_EQ(1, layer.feature_class_name.get()->repeat);
  EXPECT_EQ("roads", to_narrow(layer.feature_class_name.get()->name));
  EXPECT_EQ(Names({"ERROR IN 10 mxd_feature_layer  28"}), loaded.decoder.errors.lines);
}

TEST(Maps, every_prefix_of_a_whole_stream_is_harmless) {
  const Bytes whole = map_record(1, "m",
                                 Bytes()
                                     .add(group_layer(2, "g", 1))
                                     .add(layer_record(3, "f", workspace(4, "w")))
                                     .add(geographic(5, "G")));
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const Loaded loaded(whole.prefix(length));
    EXPECT_TRUE(loaded.ok);
    for (const auto& read : loaded.maps) {
      EXPECT_FALSE(dump_of(*read).empty());
      EXPECT_FALSE(xml_of(*read).empty());
    }
  }
}

}  // namespace
}  // namespace mxd::test
