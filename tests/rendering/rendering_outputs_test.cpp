// What renderers and legends look like in both outputs.
#include "support/rendering_records.h"

namespace mxd::test {
namespace {

// A nested object's dump, as it stands in that of its owner.
std::string inner_dump(const Tmxd_obj& object) {
  std::string out;
  object.append_object_text(out, 2, 2);
  return out;
}

std::string inner_xml(const Tmxd_obj& object, std::string_view name) {
  return xml_of(object, name) + "\n";
}

// The header included; its reserve is 3 in every record.
void expect_outputs(const Tmxd_obj& object, const std::string& dump, const std::string& xml) {
  const std::string type(object.type_name());
  const std::string number = std::to_string(object.number);
  const std::string version = std::to_string(object.version);
  EXPECT_EQ(dump_of(object), type + " = {\n  number = " + number +
                                 "\n  reserve = 3\n  version = " + version + "\n" + dump + "}\n");
  EXPECT_EQ(xml_of(object), "<it>\n<" + type + ">\n<number>" + number +
                                "</number>\n<reserve>3</reserve>\n<version>" + version +
                                "</version>\n" + xml + "</" + type + ">\n</it>");
}

const std::string run22 = "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14 15 16";

TEST(Rendering_outputs, legends) {
  const Bytes classes =
      legend_class(7, 1, "a<b", line_symbol(6, 0.5)).add(legend_class(8, 2, "Path"));
  const Bytes record = legend_group(5, "Roads & paths", 2, classes);
  Decoder decoder(record);
  Tmxd_legend_group group;
  ASSERT_TRUE(read_object(group, decoder.stream, -1, -1));
  const Tmxd_legend_class& first = group.legend_classes[0];
  const Tmxd_legend_class& second = group.legend_classes[1];
  expect_outputs(group,
                 "  int1 = -7\n  label = Roads & paths\n" + inner_dump(first) + inner_dump(second),
                 "<int1>-7</int1>\n<label>Roads &amp; paths</label>\n<legend_classes>\n" +
                     inner_xml(first, "legend_class_1") + inner_xml(second, "legend_class_2") +
                     "</legend_classes>\n");
  expect_outputs(first,
                 inner_dump(*first.symbol_slot.get()) + "  label = a<b\n  bytes1 = " + run22 + "\n",
                 inner_xml(*first.symbol_slot.get(), "symbol_slot") +
                     "<label>a&lt;b</label>\n<bytes1>" + run22 + "</bytes1>\n");
  expect_outputs(second,
                 "  symbol = UNDEFINED\n  label = Path\n  bytes1 = " + run22 + " 17 18 19 1A\n",
                 "<symbol_slot>true</symbol_slot>\n<label>Path</label>\n<bytes1>" + run22 +
                     " 17 18 19 1A</bytes1>\n");
  expect_prefixes_fail<Tmxd_legend_group>(record);
}

TEST(Rendering_outputs, simple_renderer) {
  const Bytes record = simple_renderer(4, line_symbol(9, 2));
  Decoder decoder(record);
  Tmxd_simple_renderer renderer;
  ASSERT_TRUE(read_object(renderer, decoder.stream, -1, -1));
  const Tmxd_obj& symbol = *renderer.symbol_slot.get();
  expect_outputs(
      renderer, inner_dump(symbol) + inner_dump(renderer.legend_group),
      inner_xml(symbol, "symbol_slot") + inner_xml(renderer.legend_group, "legend_group"));
  expect_prefixes_fail<Tmxd_simple_renderer>(record);
}

TEST(Rendering_outputs, unique_value_renderer) {
  const Bytes values = Bytes()
                           .i32(2)
                           .add(unique_value("dry", -1, -1, 5))
                           .wide("extra")
                           .add(unique_value("a<b", 1, -1, 0));
  Decoder decoder(unique_value_renderer(3, 4, Main::present, values, line_symbol(9, 2)));
  Tmxd_unique_value_renderer renderer;
  ASSERT_TRUE(read_object(renderer, decoder.stream, -1, -1));
  const std::string run10 = "F6 F7 F8 F9 FA FB FC FD FE FF";
  const std::string run18 = run22.substr(0, 3 * 18 - 1);
  expect_outputs(
      renderer,
      "  propname_count = 3\n  propname1 = TYPE\n  propname2 = CLASS\n  propname3 = KIND\n"
      "  bytes1 = 01 02 03\n  bytes2 = " +
          run10 + "\n" + inner_dump(*renderer.symbol_slot.get()) + "  int2 = -2\n" +
          inner_dump(renderer.other_leg_grp) + "  ushort10 = 65535\n" +
          inner_dump(renderer.main_leg_grp) + "  bytes3 = " + run18 +
          "\n  Tmxd_unique_values = {\n    wstr = dry\n    int1 = -1\n    int2 = -1\n    int3 = 5\n"
          "    wstr = a<b\n    int1 = 1\n    int2 = -1\n    int3 = 0\n  }\n",
      "<propname_count>3</propname_count>\n<propname1>TYPE</propname1>\n"
      "<propname2>CLASS</propname2>\n<propname3>KIND</propname3>\n<bytes1>01 02 03</bytes1>\n"
      "<bytes2>" +
          run10 + "</bytes2>\n" + inner_xml(*renderer.symbol_slot.get(), "symbol_slot") +
          "<int2>-2</int2>\n" + inner_xml(renderer.other_leg_grp, "other_leg_grp") +
          "<ushort10>65535</ushort10>\n" + inner_xml(renderer.main_leg_grp, "main_leg_grp") +
          "<bytes3>" + run18 +
          "</bytes3>\n<unique_values>\n<value_1>\n<wstr>dry</wstr>\n<int1>-1</int1>\n"
          "<int2>-1</int2>\n<int3>5</int3>\n</value_1>\n<value_2>\n<wstr>a&lt;b</wstr>\n"
          "<int1>1</int1>\n<int2>-1</int2>\n<int3>0</int3>\n</value_2>\n</unique_values>\n");
}

TEST(Rendering_outputs, absent_main_legend_group) {
  Decoder decoder(unique_value_renderer(0, 3, Main::absent, Bytes().i32(0)));
  Tmxd_unique_value_renderer renderer;
  ASSERT_TRUE(read_object(renderer, decoder.stream, -1, -1));
  EXPECT_NE(dump_of(renderer).find("  ushort10 = 0\n  mxd_legend_group = {\n    number = 0\n"
                                   "    reserve = 0\n    version = 0\n    int1 = 0\n    label = \n"
                                   "  }\n  bytes3 = \n  Tmxd_unique_values = {\n  }\n}\n"),
            std::string::npos);
  EXPECT_NE(xml_of(renderer).find("<main_leg_grp>\n<mxd_legend_group>\n<exists>false</exists>\n"
                                  "</mxd_legend_group>\n</main_leg_grp>\n<bytes3/>\n"
                                  "<unique_values/>\n"),
            std::string::npos);
}

TEST(Rendering_outputs, class_breaks_renderer) {
  // Upper bounds stand before lower ones.
  const Bytes ranges = Bytes().i32(2).f64s({10, 1234567}).f64s({-0.5, 10});
  const Bytes record = class_breaks_renderer(30, ranges);
  Decoder decoder(record);
  Tmxd_class_breaks_renderer renderer;
  ASSERT_TRUE(read_object(renderer, decoder.stream, -1, -1));
  EXPECT_EQ(renderer.wstr2, widen("hidden"));
  expect_outputs(
      renderer,
      "  propname = POP\n  mxd_ranges = {\n    rng_1 = -0.5 -.- 10\n    rng_2 = 10 -.- "
      "1.23457e+06\n"
      "  }\n  bytes1 = 01 02 03 04 05 06 07 08\n" +
          inner_dump(renderer.main_leg_grp),
      "<propname>POP</propname>\n<ranges>\n<rng_1>-0.5 -.- 10</rng_1>\n"
      "<rng_2>10 -.- 1.23457e+06</rng_2>\n</ranges>\n<bytes1>01 02 03 04 05 06 07 08</bytes1>\n" +
          inner_xml(renderer.main_leg_grp, "main_leg_grp"));
  expect_prefixes_fail<Tmxd_class_breaks_renderer>(record);

  // The zeros of bounds that could not be read are shown.
  const Bytes one_bound_less = class_breaks_renderer(30, ranges.prefix(ranges.size() - 8));
  const std::size_t behind_ranges = 8 + 22 + 8 + 2 * 6;
  Decoder cut(one_bound_less.prefix(one_bound_less.size() - behind_ranges));
  Tmxd_class_breaks_renderer failed;
  EXPECT_FALSE(read_object(failed, cut.stream, -1, -1));
  EXPECT_NE(dump_of(failed).find("rng_2 = 0 -.- 1.23457e+06\n"), std::string::npos);
  EXPECT_NE(xml_of(failed).find("<rng_2>0 -.- 1.23457e+06</rng_2>"), std::string::npos);
}

}  // namespace
}  // namespace mxd::test
