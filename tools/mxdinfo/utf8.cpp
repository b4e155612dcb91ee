#include "mxdinfo/utf8.h"

#include <cstdint>

namespace mxdinfo {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool is_lead(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool is_trail(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

bool is_control(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

void append(std::string& out, char32_t c) {
  const auto tail = [&](int shift) {
    out.push_back(static_cast<char>(0x80 | ((c >> shift) & 0x3F)));
  };
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | c >> 12));
    tail(6);
    tail(0);
  } else {
    out.push_back(static_cast<char>(0xF0 | c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

std::string utf8(mxd::Wide_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size() && text[i] != 0; ++i) {
    char32_t c = static_cast<char16_t>(text[i]);
    const char32_t next = i + 1 < text.size() ? static_cast<char16_t>(text[i + 1]) : 0;
    if (is_lead(c) && is_trail(next)) {
      c = 0x10000 + ((c - 0xD800) << 10) + (next - 0xDC00);
      ++i;
    } else if (is_lead(c) || is_trail(c)) {
      c = replacement;
    }
    append(out, is_control(c) ? U' ' : c);
  }
  return out;
}

}  // namespace mxdinfo
