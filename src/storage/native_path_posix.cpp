#include "storage/native_path_posix.h"

#include <cstdint>

#include "storage/native_path.h"

namespace mxd {
namespace {

constexpr bool is_high(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool is_low(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}
constexpr bool is_raw_byte(char32_t unit) {
  return unit >= 0xDC80 && unit <= 0xDCFF;
}

struct Character {
  char32_t code = 0;
  std::size_t length = 0;  // 0: no valid character starts here
};

constexpr std::size_t length_by_first_byte(unsigned first) {
  if (first < 0x80) return 1;
  if (first < 0xC2) return 0;
  if (first < 0xE0) return 2;
  if (first < 0xF0) return 3;
  return first < 0xF5 ? 4 : 0;
}

Character first_character(std::string_view bytes) {
  const auto at = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const std::size_t length = length_by_first_byte(at(0));
  if (length == 0 || length > bytes.size()) return {};
  char32_t code = length == 1 ? at(0) : at(0) & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0) != 0x80) return {};
    code = code << 6 | (at(i) & 0x3F);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  if (overlong || is_high(code) || is_low(code) || code > 0x10FFFF) return {};
  return {code, length};
}

void append_units(Wide_string& path, char32_t code) {
  if (code < 0x10000) {
    path += static_cast<Wide_char>(code);
    return;
  }
  path += static_cast<Wide_char>(0xD800 + ((code - 0x10000) >> 10));
  path += static_cast<Wide_char>(0xDC00 + (code & 0x3FF));
}

void append_utf8(std::string& bytes, char32_t code) {
  const auto tail = [&](unsigned shift) {
    bytes += static_cast<char>(0x80 | (code >> shift & 0x3F));
  };
  if (code < 0x80) {
    bytes += static_cast<char>(code);
  } else if (code < 0x800) {
    bytes += static_cast<char>(0xC0 | code >> 6);
    tail(0);
  } else if (code < 0x10000) {
    bytes += static_cast<char>(0xE0 | code >> 12);
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | code >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

Wide_string path_from_bytes(std::string_view bytes) {
  Wide_string path;
  path.reserve(bytes.size());
  while (!bytes.empty()) {
    const Character next = first_character(bytes);
    if (next.length == 0) {
      path += static_cast<Wide_char>(0xDC00 + static_cast<unsigned char>(bytes.front()));
      bytes.remove_prefix(1);
    } else {
      append_units(path, next.code);
      bytes.remove_prefix(next.length);
    }
  }
  return path;
}

std::optional<std::string> path_to_bytes(Wide_view path) {
  std::string bytes;
  bytes.reserve(path.size());
  for (std::size_t i = 0; i < path.size(); ++i) {
    const char32_t unit = path[i];
    if (is_high(unit) && i + 1 < path.size() && is_low(path[i + 1])) {
      append_utf8(bytes, 0x10000 + ((unit - 0xD800) << 10 | (path[++i] & 0x3FFU)));
    } else if (is_raw_byte(unit)) {
      bytes += static_cast<char>(unit - 0xDC00);
    } else if (is_high(unit) || is_low(unit)) {
      return std::nullopt;
    } else {
      append_utf8(bytes, unit);
    }
  }
  return bytes;
}

}  // namespace mxd
