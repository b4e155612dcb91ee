#include "storage/unicode.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "support/wide.h"

namespace mxd {
namespace {

using test::wide;

template <class Text>
std::size_t invalid_count(Text text) {
  std::size_t count = 0;
  while (!text.empty()) {
    const Code_point next = first_code_point(text);
    if (!next.valid) {
      ++count;
      EXPECT_EQ(next.value, replacement_character);
      EXPECT_EQ(next.length, 1U);
    }
    text.remove_prefix(next.length);
  }
  return count;
}

TEST(Unicode, every_code_point_survives_both_encodings) {
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (code == 0xD800) code = 0xE000;
    std::string utf8;
    Wide_string utf16;
    append_utf8(utf8, code);
    append_utf16(utf16, code);
    const Code_point from_utf8 = first_code_point(std::string_view(utf8));
    const Code_point from_utf16 = first_code_point(Wide_view(utf16));
    ASSERT_TRUE(from_utf8.valid && from_utf16.valid) << std::uint32_t{code};
    ASSERT_EQ(std::pair(from_utf8.value, from_utf8.length), std::pair(code, utf8.size()));
    ASSERT_EQ(std::pair(from_utf16.value, from_utf16.length), std::pair(code, utf16.size()));
    ASSERT_EQ(to_utf8(utf16), utf8);
  }
  EXPECT_EQ(to_utf8(wide(u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF")),
            "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Unicode, invalid_utf_8_is_skipped_byte_by_byte) {
  const std::pair<std::string_view, std::size_t> cases[] = {
      {"\x80", 1},                       // continuation byte alone
      {"\xC0\xAF \xC1\xBF", 4},          // overlong, two bytes
      {"\xE0\x80\xAF \xE0\x9F\xBF", 6},  // overlong, three bytes
      {"\xF0\x80\x80\xAF", 4},           // overlong, four bytes
      {"\xED\xA0\x80 \xED\xBF\xBF", 6},  // surrogates
      {"\xF4\x90\x80\x80", 4},           // above 0x10FFFF
      {"\xF5\x80\x80\x80 \xFE \xFF", 6},
      {"\xF0", 1},
      {"\xE2\x82", 2},
      {"\xF0\x9F\x97", 3},
      {"\xC3(", 1},  // no continuation byte
      {"\xD0\x9A\x9A\xF0\x9F\x97\xBA", 1},
  };
  for (const auto& [text, count] : cases) EXPECT_EQ(invalid_count(text), count) << text;
}

TEST(Unicode, lone_surrogates_become_replacement_characters) {
  const std::pair<Wide_string, std::string_view> cases[] = {
      {{'a', 0xD800}, "a\xEF\xBF\xBD"},
      {{0xD800, 'a'},
       "\xEF\xBF\xBD"
       "a"},
      {{0xDC00, 0xD800}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {{0xD800, 0xD83D, 0xDDFA}, "\xEF\xBF\xBD\xF0\x9F\x97\xBA"},
  };
  for (const auto& [utf16, utf8] : cases) EXPECT_EQ(to_utf8(utf16), utf8);
}

TEST(Unicode, a_path_restores_any_bytes) {
  EXPECT_EQ(path_from_bytes("a \xD0\x9A\xE5\x9C\xB0\xF0\x9F\x97\xBA"),
            wide(u"a \u041A\u5730\U0001F5FA"));
  EXPECT_EQ(path_from_bytes("\xFFz"), (Wide_string{0xDCFF, 'z'}));
  EXPECT_EQ(path_from_bytes(""), Wide_string());
  std::mt19937 random(5);
  constexpr std::string_view common = "a\x80\xBF\xC2\xD0\x9A\xE0\xED\xA0\xF0\x9F\xF4\x90\xFF";
  for (int round = 0; round < 3000; ++round) {
    std::string bytes(random() % 8, '\0');
    for (char& byte : bytes) byte = common[random() % common.size()];
    ASSERT_EQ(path_to_bytes(path_from_bytes(bytes)), bytes);
  }
}

TEST(Unicode, other_lone_surrogates_are_not_in_a_path) {
  for (const Wide_string& path : {Wide_string{0xD800}, Wide_string{'a', 0xDBFF, 'b'},
                                  Wide_string{0xDC7F}, Wide_string{0xDD00}}) {
    EXPECT_EQ(path_to_bytes(path), std::nullopt);
  }
}

}  // namespace
}  // namespace mxd
