#include "document/names.h"

#include <gtest/gtest.h>

#include "core/object_read.h"
#include "document/coordinate_system.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

Bytes dataset_fields() {
  return Bytes().wide("one").wide("two").wide("three").wide("four").u8(200);
}

Bytes dataset(int number) {
  return Bytes().object(Tmxd_feature_dataset_name::clsid, number, 1, dataset_fields());
}

Bytes feature_class_fields(const Bytes& dataset_name) {
  return Bytes()
      .wide("roads")
      .counting(6)
      .wide("Shapefile")
      .wide("ABC")
      .i32(-4)
      .counting(6, 0xA0)
      .add(dataset_name);
}

Bytes raster_fields() {
  return Bytes().u16(0xFFFF).wide("image.tif").wide("Raster").wide("").wide("four");
}

// Optional bytes at the end of the record may be missing.
struct Golden_case {
  const char* type;
  Bytes record;
  std::string dump;
  std::string xml;
  std::size_t optional = 0;
};

template <class T>
void expect_golden(const Golden_case& c) {
  SCOPED_TRACE(c.type);
  // The same number again: a copy with the same fields, and in XML the reference alone.
  Decoder decoder(Bytes(c.record).reference(T::clsid, 9));
  T object;
  T copy;
  ASSERT_TRUE(read_object(object, decoder.stream, -1, -1));
  ASSERT_TRUE(read_object(copy, decoder.stream, -1, -1));
  const std::string type(c.type);
  const std::string head = "  number = 9\n  reserve = 3\n  version = ";
  EXPECT_EQ(type + " = {\n" + head + "2\n" + c.dump + "}\n", dump_of(object));
  EXPECT_EQ("<it>\n<" + type + ">\n<number>9</number>\n<reserve>3</reserve>\n<version>2</version>" +
                c.xml + "\n</" + type + ">\n</it>",
            xml_of(object));
  EXPECT_EQ("<it>\n<" + type +
                ">\n<number>9</number>\n<reserve>3</reserve>\n<version>0</version>\n"
                "<repeat>true</repeat>\n</" +
                type + ">\n</it>",
            xml_of(copy));
  std::string fields, copied_fields;
  object.dump_fields(fields, 0, 2);
  copy.dump_fields(copied_fields, 0, 2);
  // The header of what a copy holds is no field, and so is not copied.
  EXPECT_EQ(fields.substr(0, fields.find("number")),
            copied_fields.substr(0, copied_fields.find("number")));
  expect_prefixes_fail<T>(c.record, c.record.size() - c.optional);
}

TEST(Names, read_shown_and_copied) {
  const std::string dataset_dump =
      "    str1 = one\n    str2 = two\n    str3 = three\n    str3 = four\n    byte1 = 200\n";
  const std::string dataset_xml =
      "\n<str1>one</str1>\n<str2>two</str2>\n<str3>three</str3>\n<str3>four</str3>\n"
      "<byte1>200</byte1>";
  const std::string class_dump =
      "  name = roads\n  bytes1 = 01 02 03 04 05 06\n  type_name1 = Shapefile\n"
      "  type_nam2 = ABC\n  type_nam2 = ABC\n  type_name2 = ABC\n  bytes2 = A0 A1 A2 A3 A4 A5\n"
      "  mxd_feature_dataset_name = {\n    number = 4\n    reserve = 3\n    version = 1\n" +
      dataset_dump + "  }\n";
  const std::string class_xml =
      "\n<name>roads</name>\n<bytes1>01 02 03 04 05 06</bytes1>\n"
      "<type_name1>Shapefile</type_name1>\n<type_name2>ABC</type_name2>\n"
      "<geom_type>-4</geom_type>\n<bytes2>A0 A1 A2 A3 A4 A5</bytes2>\n<feature_dataset_name>\n"
      "<mxd_feature_dataset_name>\n<number>4</number>\n<reserve>3</reserve>\n"
      "<version>1</version>" +
      dataset_xml + "\n</mxd_feature_dataset_name>\n</feature_dataset_name>";
  const std::string raster_xml =
      "\n<ushort1>65535</ushort1>\n<str1>image.tif</str1>\n<str2>Raster</str2>\n<str3/>\n"
      "<str4>four</str4>";
  const std::string raster_dump =
      "  ushort1 = 65535\n  str1 = image.tif\n  str2 = Raster\n  str3 = \n  str3 = four\n";
  expect_golden<Tmxd_workspace_name>(
      {"mxd_workspace_name",
       Bytes().object(Tmxd_workspace_name::clsid, 9, 2, Bytes().wide("C:\\a & b")),
       "  name = C:\\a & b\n", "\n<name>C:\\a &amp; b</name>"});
  expect_golden<Tmxd_feature_class_name>(
      {"mxd_feature_class_name",
       Bytes().object(Tmxd_feature_class_name::clsid, 9, 2, feature_class_fields(dataset(4))),
       class_dump, class_xml, dataset(4).size()});
  expect_golden<Tmxd_fgdb_feature_class_name>(
      {"mxd_fgdb_feature_class_name",
       Bytes().object(Tmxd_fgdb_feature_class_name::clsid, 9, 2,
                      Bytes().i32(-7).add(feature_class_fields(dataset(4)))),
       "  int1 = -7\n" + class_dump, "\n<int1>-7</int1>" + class_xml, dataset(4).size()});
  expect_golden<Tmxd_raster_dataset_name>(
      {"mxd_raster_dataset_name",
       Bytes().object(Tmxd_raster_dataset_name::clsid, 9, 2, raster_fields()), raster_dump,
       raster_xml});
  expect_golden<Tmxd_fgdb_raster_dataset_name>(
      {"mxd_fgdb_raster_dataset_name",
       Bytes().object(Tmxd_fgdb_raster_dataset_name::clsid, 9, 2, raster_fields()), raster_dump,
       raster_xml});
}

TEST(Names, a_feature_class_need_not_name_a_dataset) {
  const Bytes without =
      Bytes().object(Tmxd_feature_class_name::clsid, 9, 2, feature_class_fields(Bytes()));
  for (const Bytes& follows : {Bytes(), Bytes().zeros(40), Bytes().wide("next field")}) {
    Decoder decoder(Bytes(without).add(follows));
    Tmxd_feature_class_name name;
    EXPECT_TRUE(read_object(name, decoder.stream, 0, -1));
    EXPECT_EQ(0, name.feature_dataset_name.exists);
    EXPECT_EQ(without.size(), decoder.stream.tell());
    EXPECT_NE(xml_of(name).npos, xml_of(name).find("<mxd_feature_dataset_name>\n"
                                                   "<exists>false</exists>\n"));
  }
}

TEST(Coordinate_systems, read_shown_and_copied) {
  const std::string wkt = "GEOGCS[\"GCS\"]\xE9";
  const std::string wkt_dump = "  wkt = " + wkt + "\n";
  const std::string wkt_xml = "\n<wkt>GEOGCS[&quot;GCS&quot;]\xE9</wkt>";
  const Bytes narrow = Bytes().narrow(wkt + '\0' + "behind");
  expect_golden<Tmxd_geographic_coordinate_system>(
      {"mxd_geographic_coordinate_system",
       Bytes().object(Tmxd_geographic_coordinate_system::clsid, 9, 2, narrow), wkt_dump, wkt_xml});
  expect_golden<Tmxd_projected_coordinate_system>(
      {"mxd_projected_coordinate_system",
       Bytes().object(Tmxd_projected_coordinate_system::clsid, 9, 2, narrow), wkt_dump, wkt_xml});
  const Bytes unknown =
      Bytes().object(Tmxd_unknown_coordinate_system::clsid, 9, 2, Bytes().wide("Unknown"));
  expect_golden<Tmxd_unknown_coordinate_system>(
      {"mxd_unknown_coordinate_system", unknown, "  wkt = Unknown\n", "\n<wkt>Unknown</wkt>"});
  Decoder decoder(unknown);
  Tmxd_unknown_coordinate_system system;
  ASSERT_TRUE(read_object(system, decoder.stream, 0, -1));
  EXPECT_STREQ("", system.get_wkt());
}

TEST(Slots, find_replace_and_keep_what_fails) {
  const Bytes geographic =
      Bytes().object(Tmxd_geographic_coordinate_system::clsid, 1, 1, Bytes().narrow("G"));
  const Bytes too_long = Bytes().object(Tmxd_projected_coordinate_system::clsid, 2, 1,
                                        Bytes().i32(10000).zeros(10000));
  Decoder decoder(Bytes().zeros(3).add(geographic).add(too_long));
  const auto second = static_cast<std::int64_t>(3 + geographic.size());
  Tmxd_coordinate_system_slot slot;
  EXPECT_TRUE(slot.read(decoder.stream, 0, 18));
  EXPECT_EQ(nullptr, slot.get());
  EXPECT_EQ(0U, decoder.stream.tell());
  EXPECT_TRUE(slot.read(decoder.stream, 0, second));
  EXPECT_STREQ("G", slot.get()->get_wkt());
  EXPECT_FALSE(slot.read(decoder.stream, -1, -1));
  EXPECT_EQ(2, slot.get()->number);
  // What the slot held before can still be referred to.
  EXPECT_EQ(1, decoder.stream.registry().find(1)->object->number);
}

}  // namespace
}  // namespace mxd::test
