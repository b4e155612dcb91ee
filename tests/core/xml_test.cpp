#include "core/xml.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/number_text.h"
#include "core/text_dump.h"
#include "support/object_builder.h"
#include "support/temp_file.h"

namespace mxd::test {
namespace {

TEST(Xml, the_file_has_its_own_layout) {
  Xml_tree tree("mxd_mxd");
  const Tmxd_xml_node list = xml_add_node(tree.root(), "maps");
  xml_add_string(list, Xml_name("map_", 1), "<a> & 'b' \"c\"\x01\xE9");
  xml_add_string(list, "empty", "");
  xml_add_int(list, "zero", 0);
  xml_add_int(list, "least", std::numeric_limits<std::int32_t>::min());
  xml_add_double(list, "real", 1234567);
  xml_add_bool(list, "yes", true);
  const Tmxd_xml_node with_attributes = xml_add_node(list, "a");
  xml_add_attribute(with_attributes, "one", "1");
  xml_add_attribute(with_attributes, "two", "<");
  xml_add_node(tree.root(), "bare");
  const Temp_file file;
  ASSERT_TRUE(xml_save_file(file.path(), tree.root()));
  EXPECT_EQ(
      "<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n\n<mxd_mxd>\n<maps>\n"
      "<map_1>&lt;a&gt; &amp; &apos;b&apos; &quot;c&quot;\x01\xE9</map_1>\n<empty/>\n"
      "<zero>0</zero>\n<least>-2147483648</least>\n<real>1.23457e+06</real>\n<yes>true</yes>\n"
      "<a one=\"1\" two=\"&lt;\" />\n</maps>\n<bare/>\n</mxd_mxd>",
      file.text());
}

TEST(Xml, a_file_that_cannot_be_opened_fails) {
  Xml_tree tree("root");
  EXPECT_FALSE(xml_save_file(from_ascii("no such folder/file.xml"), tree.root()));
  EXPECT_FALSE(xml_save_file(from_ascii("."), tree.root()));
}

TEST(Numbers, have_six_significant_digits) {
  const struct {
    double value;
    const char* text;
  } cases[] = {{0.5, "0.5"},
               {1e20, "1e+20"},
               {1234567, "1.23457e+06"},
               {0, "0"},
               {-0.0, "-0"},
               {1e-5, "1e-05"},
               {0.0001, "0.0001"},
               {100000, "100000"},
               {999999.5, "1e+06"},
               {-2.5e-310, "-2.5e-310"},
               {std::numeric_limits<double>::infinity(), "inf"}};
  for (const auto& c : cases) EXPECT_EQ(c.text, double_text(c.value));
  EXPECT_EQ("-1234567", int_text(-1234567));
}

TEST(Dump, lines) {
  std::string out;
  dump_line_int(out, 2, "int1", -1);
  dump_line_double(out, 0, "size", 0.25);
  dump_line_bool(out, 1, "dither", false);
  EXPECT_EQ("  int1 = -1\nsize = 0.25\n dither = false\n", out);
}

}  // namespace
}  // namespace mxd::test
