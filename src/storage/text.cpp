#include "storage/text.h"

#include <algorithm>
#include <array>

namespace mxd {

Wide_string from_ascii(std::string_view ascii) {
  Wide_string wide(ascii.size(), Wide_char{});
  std::transform(ascii.begin(), ascii.end(), wide.begin(),
                 [](char c) { return static_cast<Wide_char>(static_cast<unsigned char>(c)); });
  return wide;
}

Wide_view trim(Wide_view text) {
  static constexpr std::array<Wide_char, 4> blank_units = {' ', '\r', '\t', '\n'};
  static constexpr Wide_view blanks(blank_units.data(), blank_units.size());
  const auto first = text.find_first_not_of(blanks);
  if (first == Wide_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::string_view truncate_at_nul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

void append_hex(std::string& out, std::span<const std::uint8_t> bytes, std::string_view separator) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  bool first = true;
  for (const std::uint8_t byte : bytes) {
    if (!first) out.append(separator);
    first = false;
    out.push_back(digits[byte >> 4]);
    out.push_back(digits[byte & 15]);
  }
}

std::string bytes_to_hex(std::span<const std::uint8_t> bytes, std::string_view separator) {
  std::string text;
  append_hex(text, bytes, separator);
  return text;
}

}  // namespace mxd
