#include "document/map.h"

#include <gtest/gtest.h>

#include "core/object_read.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

Bytes group_fields(const char* name, int members) {
  return Bytes().wide(name).u16(0xFFFF).counting(20).i32(members).counting(8);
}

Bytes group(int number, const char* name, int members) {
  return Bytes().object(Tmxd_group_layer::clsid, number, 1, group_fields(name, members));
}

Bytes workspace(int number, const char* name) {
  return Bytes().object(Tmxd_workspace_name::clsid, number, 1, Bytes().wide(name));
}

Bytes geographic(int number, const char* wkt) {
  return Bytes().object(Tmxd_geographic_coordinate_system::clsid, number, 1, Bytes().narrow(wkt));
}

Bytes feature_layer(int number, const char* name, const Bytes& behind_name) {
  return Bytes().object(Tmxd_feature_layer::clsid, number, 1,
                        Bytes().wide(name).wide("Feature Layer").u16(1).zeros(4).add(behind_name));
}

Bytes map(int number, const char* name, const Bytes& content) {
  return Bytes().object(Tmxd_map::clsid, number, 1, Bytes().wide(name).add(content));
}

// The layers of one map that holds this.
struct Loaded {
  explicit Loaded(const Bytes& bytes) : decoder(bytes) { ok = read_maps(maps, decoder.stream); }

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
  const Bytes raster_name = Bytes().object(Tmxd_raster_dataset_name::clsid, 3, 1,
                                           Bytes().u16(0).wide("r").wide("").wide("").wide(""));
  const Bytes raster = Bytes().object(Tmxd_raster_layer::clsid, 2, 1,
                                      Bytes()
                                          .u16(65535)
                                          .wide("image")
                                          .counting(18)
                                          .zeros(1)
                                          .add(raster_name)
                                          .add(workspace(4, "w")));
  const Bytes bare_raster =
      Bytes().object(Tmxd_raster_layer::clsid, 7, 1,
                     Bytes().u16(1).wide("bare").counting(18).add(workspace(8, "w")));
  const Bytes graphics = Bytes().object(Tmxd_fdo_graphics_layer::clsid, 5, 6, Bytes());
  const Loaded loaded(
      map(9, "m", Bytes().add(group(1, "g", 2)).add(raster).add(graphics).add(bare_raster)));
  ASSERT_EQ(1U, loaded.maps.size());
  const Tmxd_layers& layers = loaded.maps[0].layers;
  ASSERT_EQ(4U, layers.size());
  EXPECT_EQ(
      "mxd_group_layer = {\n  number = 1\n  reserve = 3\n  version = 1\n  layer_name = g\n"
      "  visible = -1\n  bytes1 = 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14\n"
      "  layer_count = 2\n  bytes2 = 01 02 03 04 05 06 07 08\n}\n",
      dump_of(layers[0]));
  EXPECT_EQ(
      "<it>\n<mxd_group_layer>\n<number>1</number>\n<reserve>3</reserve>\n<version>1</version>\n"
      "<layer_name>g</layer_name>\n<visible>-1</visible>\n"
      "<bytes1>01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14</bytes1>\n"
      "<layer_count>2</layer_count>\n<bytes2>01 02 03 04 05 06 07 08</bytes2>\n"
      "</mxd_group_layer>\n</it>",
      xml_of(layers[0]));
  EXPECT_EQ(
      "mxd_raster_layer = {\n  number = 2\n  reserve = 3\n  version = 1\n  ushort1 = 65535\n"
      "  layer_name = image\n"
      "  bytes1 = 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12\n"
      "  mxd_raster_dataset_name = {\n    number = 3\n    reserve = 3\n    version = 1\n"
      "    ushort1 = 0\n    str1 = r\n    str2 = \n    str3 = \n    str3 = \n  }\n"
      "  mxd_workspace_name = {\n    number = 4\n    reserve = 3\n    version = 1\n    name = w\n"
      "  }\n}\n",
      dump_of(layers[1]));
  EXPECT_NE(std::string::npos, xml_of(layers[1]).find("\n<raster_dataset_name>\n"));
  EXPECT_EQ(
      "<it>\n<mxd_fdo_graphics_layer>\n<number>5</number>\n<reserve>3</reserve>\n"
      "<version>6</version>\n</mxd_fdo_graphics_layer>\n</it>",
      xml_of(layers[2]));
  EXPECT_NE(
      std::string::npos,
      xml_of(layers[3]).find("\n<basic_raster_dataset_name>true</basic_raster_dataset_name>\n"));
  EXPECT_NE(std::string::npos,
            dump_of(layers[3]).find("  basic_raster_dataset_name = UNDEFINED\n"));
  expect_prefixes_fail<Tmxd_group_layer>(group(1, "g", 2));
  expect_prefixes_fail<Tmxd_raster_layer>(raster);
}

TEST(Maps, end_where_the_next_one_begins) {
  const Loaded loaded(
      Bytes()
          .raw("odd")
          .add(map(1, "first", group(2, "a", 0)))
          .add(map(3, "second",
                   Bytes().add(group(4, "b", 1)).add(group(5, "c", 0)).add(geographic(6, "G")))));
  ASSERT_EQ(2U, loaded.maps.size());
  EXPECT_EQ(Names({"a"}), layer_names(loaded.maps[0]));
  EXPECT_EQ(Names({"b", "c"}), layer_names(loaded.maps[1]));
  EXPECT_EQ(nullptr, loaded.maps[0].coordinate_system.get());
  EXPECT_STREQ("G", loaded.maps[1].coordinate_system.get()->get_wkt());
  EXPECT_EQ(0U, xml_of(loaded.maps[0])
                    .find("<it>\n<mxd_map>\n<number>1</number>\n<reserve>3</reserve>\n"
                          "<version>1</version>\n<name>first</name>\n<layers>\n<layer_1>\n"));
}

TEST(Maps, without_layers_and_coordinate_system) {
  const Loaded loaded(map(1, "empty", Bytes()));
  EXPECT_EQ(
      "mxd_map = {\n  number = 1\n  reserve = 3\n  version = 1\n  name = empty\n"
      "  coordinate_system = UNDEFINED\n}\n",
      dump_of(loaded.maps[0]));
  EXPECT_EQ(
      "<it>\n<mxd_map>\n<number>1</number>\n<reserve>3</reserve>\n<version>1</version>\n"
      "<name>empty</name>\n<layers/>\n<prj_crd_sys>true</prj_crd_sys>\n</mxd_map>\n</it>",
      xml_of(loaded.maps[0]));
  const Loaded none(Bytes().zeros(40));
  EXPECT_TRUE(none.ok);
  EXPECT_TRUE(none.maps.empty());
}

TEST(Maps, one_that_fails_costs_only_itself) {
  const Bytes broken = Bytes().object(Tmxd_map::clsid, 1, 1, Bytes().i32(10001));
  const Loaded loaded(Bytes()
                          .add(broken)
                          .add(map(2, "kept", group(3, "layer", 0)))
                          .add(Bytes().reference(Tmxd_map::clsid, 2)));
  ASSERT_EQ(2U, loaded.maps.size());
  EXPECT_EQ("kept", to_narrow(loaded.maps[0].name));
  // A reference to a map names it, and holds nothing of it.
  EXPECT_EQ(1, loaded.maps[1].repeat);
  EXPECT_TRUE(loaded.maps[1].layers.empty());
  EXPECT_EQ(Names({"ERROR IN 1 mxd_map  0"}), loaded.decoder.errors.lines);
}

TEST(Layers, what_a_dropped_layer_held_can_still_be_referred_to) {
  // The first layer breaks off behind its feature class name; the second refers to that name.
  const Bytes class_name =
      Bytes().object(Tmxd_feature_class_name::clsid, 11, 1,
                     Bytes().wide("roads").zeros(6).wide("Shapefile").wide("").i32(1).zeros(6));
  const Bytes dropped = feature_layer(10, "dropped", Bytes(class_name).zeros(30));
  const Bytes kept = feature_layer(
      12, "kept",
      Bytes().reference(Tmxd_feature_class_name::clsid, 11).add(workspace(13, "place")));
  const Loaded loaded(map(1, "m", Bytes(dropped).add(kept)));
  ASSERT_EQ(Names({"kept"}), layer_names(loaded.maps[0]));
  const auto& layer = dynamic_cast<const Tmxd_feature_layer&>(loaded.maps[0].layers[0]);
  EXPECT_EQ(1, layer.feature_class_name.get()->repeat);
  EXPECT_EQ("roads", to_narrow(layer.feature_class_name.get()->name));
  EXPECT_EQ(Names({"ERROR IN 10 mxd_feature_layer  28"}), loaded.decoder.errors.lines);
}

TEST(Maps, every_prefix_of_a_whole_stream_is_harmless) {
  const Bytes whole = map(1, "m",
                          Bytes()
                              .add(group(2, "g", 1))
                              .add(feature_layer(3, "f", workspace(4, "w")))
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
