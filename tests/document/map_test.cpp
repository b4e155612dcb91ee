#include <gtest/gtest.h>

#include "core/read_helpers.h"
#include "support/document_records.h"
#include "support/golden.h"

namespace mxd::test {
namespace {

// The maps that are found, and the errors of the others.
void expect_maps(const std::string& section, const Bytes& bytes) {
  Decoder decoder(bytes);
  Tmxd_maps maps;
  EXPECT_TRUE(read_all_found(maps, decoder.stream, -1, -1));
  std::string text;
  for (const Tmxd_map* map : maps) text += dump_of(*map) + xml_of(*map) + "\n";
  for (const std::string& line : decoder.errors.lines) text += line + "\n";
  expect_golden("document", section, text);
}

TEST(Layers, group_raster_and_graphics_are_read_and_shown) {
  const auto raster_layer = [](int number, const Bytes& data) {
    return object<Tmxd_raster_layer>(number, 1,
                                     Bytes().u16(65535).wide("image").counting(18).add(data));
  };
  const Bytes dataset =
      object<Tmxd_raster_dataset_name>(3, 1, Bytes().u16(0).wide("r").wide("").wide("").wide(""));
  const Bytes raster = raster_layer(2, Bytes().zeros(1).add(dataset).add(workspace(4, "w")));
  const Bytes graphics = object<Tmxd_fdo_graphics_layer>(5, 6, Bytes());
  const Bytes layers =
      group_layer(1, "g", 2).add(raster).add(graphics).add(raster_layer(7, workspace(8, "w")));
  expect_maps("layers", map_record(9, "m", layers));
  expect_prefixes_fail<Tmxd_group_layer>(group_layer(1, "g", 2));
  expect_prefixes_fail<Tmxd_raster_layer>(raster);
}

TEST(Maps, end_where_the_next_one_begins) {
  const Bytes layers = Packed(group_layer(4, "b", 1), group_layer(5, "c", 0), geographic(6, "G"));
  expect_maps("two maps", Packed(Bytes().raw("odd"), map_record(1, "first", group_layer(2, "a", 0)),
                                 map_record(3, "second", layers)));
}

TEST(Maps, without_layers_and_coordinate_system) {
  expect_maps("empty map", map_record(1, "empty", Bytes()));
  expect_maps("no map", Bytes().zeros(40));
}

// A reference to a map names it, and holds nothing of it.
TEST(Maps, one_that_fails_costs_only_itself) {
  const Bytes broken = object<Tmxd_map>(1, 1, Bytes().i32(10001));
  expect_maps("broken map", Packed(broken, map_record(2, "kept", group_layer(3, "layer", 0)),
                                   reference<Tmxd_map>(2)));
}

// The first layer ends after its feature class name; the second refers to that name.
TEST(Layers, what_a_dropped_layer_held_can_still_be_referred_to) {
  const Bytes dropped = layer_record(10, "dropped", feature_class(11, "roads").zeros(30));
  const Bytes kept =
      layer_record(12, "kept", reference<Tmxd_feature_class_name>(11).add(workspace(13, "place")));
  expect_maps("dropped layer", map_record(1, "m", Bytes(dropped).add(kept)));
}

}  // namespace
}  // namespace mxd::test
