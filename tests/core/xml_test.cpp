#include "core/xml.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/number_text.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

TEST(Xml, has_the_layout_that_consumers_expect) {
  const std::string text = xml_document("mxd_mxd", [](Xml_builder& xml) {
    xml.open("maps");
    xml.add_string(Xml_name("map_", 1), "<a> & 'b' \"c\"\x01\xE9");
    xml.add_string("empty", "");
    xml.add_int("zero", 0);
    xml.add_int("least", std::numeric_limits<std::int32_t>::min());
    xml.add_double("real", 1234567);
    xml.add_bool("yes", true);
    xml.add_bytes("run", std::vector<std::uint8_t>{0, 0x1A, 0xFF});
    xml.open("nested");
    xml.close();
    xml.close();
    xml.open("bare");
  });
  EXPECT_EQ(
      "<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n\n<mxd_mxd>\n<maps>\n"
      "<map_1>&lt;a&gt; &amp; &apos;b&apos; &quot;c&quot;\x01\xE9</map_1>\n<empty/>\n"
      "<zero>0</zero>\n<least>-2147483648</least>\n<real>1.23457e+06</real>\n<yes>true</yes>\n"
      "<run>00 1A FF</run>\n<nested/>\n</maps>\n<bare/>\n</mxd_mxd>",
      text);
}

TEST(Xml, is_written_in_pieces_without_gaps) {
  std::string expected = "<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n\n<root>";
  const std::string text = xml_document("root", [&](Xml_builder& xml) {
    for (int i = 1; i <= 30000; ++i) {
      xml.add_int(Xml_name("n_", i), i);
      const std::string number = std::to_string(i);
      expected.append("\n<n_" + number + ">").append(number).append("</n_" + number + ">");
    }
  });
  EXPECT_TRUE(text == expected + "\n</root>");
}

TEST(Xml, is_written_before_it_is_complete) {
  std::FILE* file = std::tmpfile();
  Xml_builder xml(file, "root");
  for (int i = 0; i < 200; ++i) xml.add_string("text", std::string(1000, 'x'));
  EXPECT_GT(std::ftell(file), 100'000);
  std::fclose(file);
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

}  // namespace
}  // namespace mxd::test
