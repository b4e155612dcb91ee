// GUIDs: 16 bytes in the order of their text form.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace mxd {

struct Guid {
  std::array<std::uint8_t, 16> bytes{};

  bool is_null() const { return *this == Guid{}; }
  // Compares two words: faster than 16 bytes, and done at every step of a search.
  bool operator==(const Guid& other) const { return words() == other.words(); }
  bool operator<(const Guid& other) const { return bytes < other.bytes; }

 private:
  std::array<std::uint64_t, 2> words() const {
    return std::bit_cast<std::array<std::uint64_t, 2>>(bytes);
  }
};

// Converts between the text order and the order in streams, where the first three groups are
// little-endian. The function is its own inverse.
constexpr Guid swap_guid_byte_order(const Guid& guid) {
  Guid result = guid;
  std::swap(result.bytes[0], result.bytes[3]);
  std::swap(result.bytes[1], result.bytes[2]);
  std::swap(result.bytes[4], result.bytes[5]);
  std::swap(result.bytes[6], result.bytes[7]);
  return result;
}

constexpr int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Parses 8-4-4-4-12 hexadecimal digits without braces. The dashes are not checked; a pair that does
// not begin with a digit becomes 0, a pair with one digit the value of that digit.
constexpr Guid guid_from_text(std::string_view text) {
  constexpr std::array<std::size_t, 16> pair_starts = {0,  2,  4,  6,  9,  11, 14, 16,
                                                       19, 21, 24, 26, 28, 30, 32, 34};
  Guid result;
  for (std::size_t i = 0; i < 16; ++i) {
    if (pair_starts[i] + 2 > text.size()) break;
    const int high = hex_digit(text[pair_starts[i]]);
    const int low = hex_digit(text[pair_starts[i] + 1]);
    const int value = high < 0 ? 0 : low < 0 ? high : high * 16 + low;
    result.bytes[i] = static_cast<std::uint8_t>(value);
  }
  return result;
}

// A class id as text, which is reported, and as bytes, which are compared.
struct Class_id {
  std::string_view text;
  Guid guid;

  constexpr explicit Class_id(std::string_view clsid_text)
      : text(clsid_text), guid(guid_from_text(clsid_text)) {}
};

}  // namespace mxd
