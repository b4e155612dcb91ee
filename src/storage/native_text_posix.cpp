// There is no ANSI code page here, so the one that the XML declares is used: windows-1251.
#include <algorithm>
#include <array>
#include <cstdint>

#include "storage/native_text.h"

namespace mxd {
namespace {

// 0x98 has no character of its own; it stands for the control character of that number.
constexpr std::array<char16_t, 64> units_80_to_bf = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x20AC, 0x2030, 0x0409, 0x2039, 0x040A, 0x040C, 0x040B, 0x040F,  //
    0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x0098, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F,  //
    0x00A0, 0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7,  //
    0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,  //
    0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7,  //
    0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457,
};

constexpr std::array<char16_t, 256> make_units() {
  std::array<char16_t, 256> units{};
  for (std::size_t byte = 0; byte < units.size(); ++byte) {
    if (byte < 0x80) units[byte] = static_cast<char16_t>(byte);
    if (byte >= 0x80 && byte < 0xC0) units[byte] = units_80_to_bf[byte - 0x80];
    if (byte >= 0xC0) units[byte] = static_cast<char16_t>(0x0410 + (byte - 0xC0));
  }
  return units;
}
constexpr auto units = make_units();
constexpr std::size_t bytes_end = *std::max_element(units.begin(), units.end()) + std::size_t{1};

constexpr std::array<char, bytes_end> make_bytes() {
  std::array<char, bytes_end> bytes{};
  bytes.fill('?');
  for (std::size_t byte = 0; byte < units.size(); ++byte) {
    bytes[units[byte]] = static_cast<char>(byte);
  }
  return bytes;
}
constexpr auto bytes = make_bytes();

constexpr Wide_char fold(Wide_char unit) {
  return unit >= 'A' && unit <= 'Z' ? static_cast<Wide_char>(unit + ('a' - 'A')) : unit;
}

}  // namespace

std::string to_narrow(Wide_view text) {
  text = text.substr(0, text.find(Wide_char{}));
  std::string narrow(text.size(), '?');
  std::transform(text.begin(), text.end(), narrow.begin(),
                 [](Wide_char unit) { return unit < bytes.size() ? bytes[unit] : '?'; });
  return narrow;
}

Wide_string narrow_to_wide(std::string_view text) {
  Wide_string wide(text.size(), Wide_char{});
  std::transform(text.begin(), text.end(), wide.begin(),
                 [](char byte) { return units[static_cast<unsigned char>(byte)]; });
  return wide;
}

bool equal_ignoring_case(Wide_view left, Wide_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](Wide_char a, Wide_char b) { return fold(a) == fold(b); });
}

}  // namespace mxd
