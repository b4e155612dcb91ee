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

char* put_hex(char* to, const Byte_run& bytes, std::string_view separator) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  bool first = true;
  for (const std::uint8_t byte : bytes) {
    if (!first) to = std::copy(separator.begin(), separator.end(), to);
    first = false;
    *to++ = digits[byte >> 4];
    *to++ = digits[byte & 15];
  }
  return to;
}

std::string bytes_to_hex(const Byte_run& bytes, std::string_view separator) {
  if (bytes.empty()) return {};
  std::string text(bytes.size() * 2 + (bytes.size() - 1) * separator.size(), '\0');
  put_hex(text.data(), bytes, separator);
  return text;
}

}  // namespace mxd
