#include "storage/text.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "storage/platform.h"
#include "support/wide.h"

namespace mxd {
namespace {

using test::wide;

TEST(Code_page, is_windows_1251) {
  const std::pair<std::u16string_view, std::string_view> cases[] = {
      {u"Map 1~", "Map 1~"},
      {u"\u0410\u042F\u0430\u044F\u0401\u0451", "\xC0\xDF\xE0\xFF\xA8\xB8"},
      {u"\u0402\u201A\u20AC\u2122\u2116\u0490\u00A0", "\x80\x82\x88\x99\xB9\xA5\xA0"},
      {u"\u0098", "\x98"},
  };
  for (const auto& [units, bytes] : cases) {
    EXPECT_EQ(to_narrow(wide(units)), bytes);
    EXPECT_EQ(narrow_to_wide(bytes), wide(units));
  }
}

TEST(Code_page, units_without_a_place_become_question_marks) {
  EXPECT_EQ(to_narrow(wide(u"a\u5730\u0628b")), "a??b");
  EXPECT_EQ(to_narrow(wide(u"\U0001F5FA.")), "??.");
  EXPECT_EQ(to_narrow(Wide_string{0xD800, 'x', 0xFFFD}), "?x?");
}

TEST(Code_page, narrow_text_ends_at_the_first_nul_and_wide_text_does_not) {
  EXPECT_EQ(to_narrow(wide(std::u16string_view(u"ab\0cd", 5))), "ab");
  EXPECT_EQ(to_narrow(Wide_string(3, Wide_char{})), "");
  EXPECT_EQ(to_narrow({}), "");
  EXPECT_EQ(narrow_to_wide(std::string_view("a\0b", 3)).size(), 3U);
  EXPECT_EQ(narrow_to_wide({}), Wide_string());
}

TEST(Text, trim_removes_only_outer_blanks) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {" \r\t\nMaps \n", "Maps"}, {"a b", "a b"}, {" \t ", ""}, {"", ""}, {"\v x", "\v x"}};
  for (const auto& [text, trimmed] : cases) EXPECT_EQ(trim(from_ascii(text)), from_ascii(trimmed));
  EXPECT_EQ(trim(wide(u"\u00A0x")), wide(u"\u00A0x"));
}

TEST(Text, names_are_equal_whatever_their_case) {
  EXPECT_TRUE(equal_ignoring_case(from_ascii("Maps"), from_ascii("mAPS")));
  EXPECT_FALSE(equal_ignoring_case(from_ascii("Maps"), from_ascii("Map")));
  EXPECT_FALSE(equal_ignoring_case(from_ascii("Map"), from_ascii("Maps")));
  EXPECT_FALSE(equal_ignoring_case(from_ascii("a[{z"), from_ascii("a{[z")));
}

}  // namespace
}  // namespace mxd
