#include "document/names.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "support/decoded.h"
#include "support/document_records.h"

namespace mxd::test {
namespace {

Bytes feature_class_fields(const Bytes& dataset_name) {
  return Packed("roads", run(6), "Shapefile", "ABC", -4, run(6, 0xA0), dataset_name);
}

// The same number again is a copy with the same fields, and in XML the reference alone. Optional
// bytes at the end of the record may be missing. Slot is void for a class that no slot holds.
template <class T, class Slot>
void expect_shown_and_copied(const Bytes& fields, std::size_t optional = 0) {
  SCOPED_TRACE(T::type);
  const Bytes record = Bytes().object(T::clsid, 9, 2, fields);
  Decoder decoder(Bytes(record).reference(T::clsid, 9));
  T object, copy;
  ASSERT_TRUE(read_object(object, decoder.stream, -1, -1));
  ASSERT_TRUE(read_object(copy, decoder.stream, -1, -1));
  expect_golden("document", std::string(T::type), object);
  expect_golden("document", std::string(T::type) + ", again", copy);
  expect_prefixes_fail<T>(record, optional);
  if constexpr (!std::is_void_v<Slot>) expect_found<T, Slot>(record);
}

TEST(Names, read_shown_and_copied) {
  const Bytes dataset = object<Tmxd_feature_dataset_name>(
      4, 1, Bytes().wide("one").wide("two").wide("three").wide("four").u8(200));
  const Bytes raster = Bytes().u16(0xFFFF).wide("image.tif").wide("Raster").wide("").wide("four");
  const Bytes in_dataset = feature_class_fields(dataset);
  expect_shown_and_copied<Tmxd_workspace_name, void>(Bytes().wide("C:\\a & b"));
  expect_shown_and_copied<Tmxd_feature_class_name, Tmxd_feature_class_name_slot>(in_dataset,
                                                                                 dataset.size());
  expect_shown_and_copied<Tmxd_fgdb_feature_class_name, Tmxd_feature_class_name_slot>(
      Bytes().i32(-7).add(in_dataset), dataset.size());
  expect_shown_and_copied<Tmxd_raster_dataset_name, Tmxd_raster_dataset_name_slot>(raster);
  expect_shown_and_copied<Tmxd_fgdb_raster_dataset_name, Tmxd_raster_dataset_name_slot>(raster);
}

TEST(Names, a_feature_class_need_not_name_a_dataset) {
  const Bytes without = object<Tmxd_feature_class_name>(9, 2, feature_class_fields(Bytes()));
  expect_decoded<Tmxd_feature_class_name>("document", "feature classes in no dataset",
                                          {{"at the end", without},
                                           {"before zeros", Bytes(without).zeros(40)},
                                           {"before a string", Bytes(without).wide("next")}});
}

TEST(Coordinate_systems, read_shown_and_copied) {
  const Bytes wkt = Bytes().narrow(std::string("GEOGCS[\"GCS\"]\xE9") + '\0' + "after");
  expect_shown_and_copied<Tmxd_geographic_coordinate_system, Tmxd_coordinate_system_slot>(wkt);
  expect_shown_and_copied<Tmxd_projected_coordinate_system, Tmxd_coordinate_system_slot>(wkt);
  const Bytes unknown = Bytes().wide("Unknown");
  expect_shown_and_copied<Tmxd_unknown_coordinate_system, Tmxd_coordinate_system_slot>(unknown);
  Decoder decoder(object<Tmxd_unknown_coordinate_system>(9, 2, unknown));
  Tmxd_unknown_coordinate_system system;
  ASSERT_TRUE(read_object(system, decoder.stream, 0, -1));
  EXPECT_STREQ("", system.get_wkt());
}

TEST(Slots, find_replace_and_keep_what_fails) {
  const Bytes first = geographic(1, "G");
  const Bytes too_long = Bytes().object(Tmxd_projected_coordinate_system::clsid, 2, 1,
                                        Bytes().i32(10000).zeros(10000));
  Decoder decoder(Bytes().zeros(3).add(first).add(too_long));
  const auto second = static_cast<std::int64_t>(3 + first.size());
  Tmxd_coordinate_system_slot slot;
  EXPECT_TRUE(slot.read(decoder.stream, 0, 18));
  EXPECT_EQ(nullptr, slot.get());
  EXPECT_EQ(0U, decoder.stream.tell());
  EXPECT_TRUE(slot.read(decoder.stream, 0, second));
  EXPECT_STREQ("G", slot.get()->get_wkt());
  EXPECT_FALSE(slot.read(decoder.stream, -1, -1));
  EXPECT_EQ(2, slot.get()->number);
  // What the slot held before can still be referred to.
  EXPECT_EQ(1, decoder.stream.load().find(1)->object->number);
}

}  // namespace
}  // namespace mxd::test
