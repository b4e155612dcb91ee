#include "mxdinfo/facts/utf8.h"

#include <fmt/format.h>

#include <cstdint>
#include <utility>

#include "core/xml.h"
#include "storage/unicode.h"

namespace mxdinfo {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool is_lead(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool is_trail(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
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

bool is_control(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

// What turns the direction of the text around it.
bool is_direction(char32_t c) {
  return c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

bool is_fit_for_markup(char32_t c) {
  return !is_control(c) && !is_direction(c) && (c & 0xFFFE) != 0xFFFE;
}

std::string_view entity(char32_t c) {
  return c < 0x80 ? mxd::xml_entity(static_cast<char>(c)) : std::string_view();
}

// The character that valid UTF-8 begins with, and its length.
std::pair<char32_t, std::size_t> first_character(std::string_view text) {
  const auto at = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = at(0);
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t c = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) c = c << 6 | (at(i) & 0x3FU);
  return {c, length};
}

template <class Change>
std::string changed(std::string_view text, Change change) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const auto [c, length] = first_character(text);
    if (!change(out, c)) out.append(text.substr(0, length));
    text.remove_prefix(length);
  }
  return out;
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
    append(out, c);
  }
  return out;
}

std::string utf8_of_narrow(std::string_view text) {
  return utf8(mxd::narrow_to_wide(text));
}

std::string utf8_of_path(std::string_view path) {
  return utf8(mxd::path_from_bytes(path));
}

std::string on_one_line(std::string_view text) {
  return changed(text, [](std::string& out, char32_t c) {
    if (!is_control(c) && !is_direction(c)) return false;
    const auto code = static_cast<std::uint32_t>(c);
    out += c < 0x100 ? fmt::format("\\x{:02x}", code) : fmt::format("\\u{:04x}", code);
    return true;
  });
}

std::string in_markup(std::string_view text) {
  return changed(text, [](std::string& out, char32_t c) {
    const std::string_view reference = entity(c);
    if (reference.empty() && is_fit_for_markup(c)) return false;
    out.append(reference);
    if (reference.empty()) append(out, c < 0x20 ? 0x2400 + c : replacement);
    return true;
  });
}

std::string folded(std::string_view text) {
  return changed(text, [](std::string& out, char32_t c) {
    const bool upper = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) ||
                       (c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F);
    // Capitals and small letters in turn, small ones on odd codes but for two stretches.
    const bool small_is_even = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    const bool in_turn = c >= 0x100 && c <= 0x17E && c != 0x130 && c != 0x131 && c != 0x138 &&
                         c != 0x149 && c != 0x178 && (c % 2 == 0) != small_is_even;
    if (upper) append(out, c + 0x20);
    if (c >= 0x400 && c <= 0x40F) append(out, c + 0x50);
    if (in_turn) append(out, c + 1);
    return upper || in_turn || (c >= 0x400 && c <= 0x40F);
  });
}

}  // namespace mxdinfo
