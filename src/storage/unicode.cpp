#include "storage/unicode.h"

#include <cassert>

namespace mxd {
namespace {

constexpr bool is_high_surrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool is_low_surrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool is_surrogate(char32_t unit) {
  return is_high_surrogate(unit) || is_low_surrogate(unit);
}

constexpr bool is_escaped_byte(char32_t unit) {
  return unit >= 0xDC80 && unit <= 0xDCFF;
}

// 0 if no code point starts with the byte.
constexpr std::size_t utf8_length(unsigned first_byte) {
  if (first_byte < 0x80) return 1;
  if (first_byte < 0xC2) return 0;
  if (first_byte < 0xE0) return 2;
  if (first_byte < 0xF0) return 3;
  return first_byte < 0xF5 ? 4 : 0;
}

}  // namespace

Code_point first_code_point(std::string_view utf8) {
  assert(!utf8.empty());
  const auto byte = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const std::size_t length = utf8_length(byte(0));
  if (length == 0 || length > utf8.size()) return {};
  char32_t value = length == 1 ? byte(0) : byte(0) & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {};
    value = value << 6 | (byte(i) & 0x3FU);
  }
  const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
  if (overlong || is_surrogate(value) || value > 0x10FFFF) return {};
  return {value, length, true};
}

Code_point first_code_point(Wide_view utf16) {
  assert(!utf16.empty());
  const char32_t unit = utf16[0];
  if (!is_surrogate(unit)) return {unit, 1, true};
  if (!is_high_surrogate(unit) || utf16.size() == 1 || !is_low_surrogate(utf16[1])) return {};
  return {0x10000 + ((unit & 0x3FF) << 10 | (utf16[1] & 0x3FFU)), 2, true};
}

void append_utf8(std::string& out, char32_t code_point) {
  assert(code_point <= 0x10FFFF && !is_surrogate(code_point));
  const auto append_tail = [&](unsigned shift) {
    out += static_cast<char>(0x80 | (code_point >> shift & 0x3F));
  };
  if (code_point < 0x80) {
    out += static_cast<char>(code_point);
  } else if (code_point < 0x800) {
    out += static_cast<char>(0xC0 | code_point >> 6);
    append_tail(0);
  } else if (code_point < 0x10000) {
    out += static_cast<char>(0xE0 | code_point >> 12);
    append_tail(6);
    append_tail(0);
  } else {
    out += static_cast<char>(0xF0 | code_point >> 18);
    append_tail(12);
    append_tail(6);
    append_tail(0);
  }
}

void append_utf16(Wide_string& out, char32_t code_point) {
  assert(code_point <= 0x10FFFF && !is_surrogate(code_point));
  if (code_point < 0x10000) {
    out += static_cast<Wide_char>(code_point);
  } else {
    out += static_cast<Wide_char>(0xD800 + ((code_point - 0x10000) >> 10));
    out += static_cast<Wide_char>(0xDC00 + (code_point & 0x3FF));
  }
}

std::string to_utf8(Wide_view utf16) {
  std::string utf8;
  utf8.reserve(utf16.size());
  while (!utf16.empty()) {
    const Code_point next = first_code_point(utf16);
    append_utf8(utf8, next.value);
    utf16.remove_prefix(next.length);
  }
  return utf8;
}

Wide_string path_from_bytes(std::string_view bytes) {
  Wide_string path;
  path.reserve(bytes.size());
  while (!bytes.empty()) {
    const Code_point next = first_code_point(bytes);
    if (next.valid) {
      append_utf16(path, next.value);
    } else {
      path += static_cast<Wide_char>(0xDC00 + static_cast<unsigned char>(bytes.front()));
    }
    bytes.remove_prefix(next.length);
  }
  return path;
}

std::optional<std::string> path_to_bytes(Wide_view path) {
  std::string bytes;
  bytes.reserve(path.size());
  while (!path.empty()) {
    const Code_point next = first_code_point(path);
    if (next.valid) {
      append_utf8(bytes, next.value);
    } else if (is_escaped_byte(path.front())) {
      bytes += static_cast<char>(path.front() - 0xDC00);
    } else {
      return std::nullopt;
    }
    path.remove_prefix(next.length);
  }
  return bytes;
}

}  // namespace mxd
