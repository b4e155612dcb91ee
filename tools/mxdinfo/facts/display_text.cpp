#include "mxdinfo/facts/display_text.h"

#include <fmt/format.h>

#include <cstdint>

#include "core/xml.h"
#include "storage/unicode.h"

namespace mxdinfo {
namespace {

using mxd::append_utf8;

bool is_control(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029;
}

// Characters that change the direction of the text around them.
bool is_direction(char32_t c) {
  return c == 0x61C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

bool is_fit_for_markup(char32_t c) {
  return !is_control(c) && !is_direction(c) && (c & 0xFFFE) != 0xFFFE;
}

std::string_view entity(char32_t c) {
  return c < 0x80 ? mxd::xml_entity(static_cast<char>(c)) : std::string_view();
}

// `append` appends the replacement of a character, or returns false if it has none.
template <class Append>
std::string map_characters(std::string_view text, Append append) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const mxd::Code_point c = mxd::first_code_point(text);
    if (!append(out, c.value)) append_utf8(out, c.value);
    text.remove_prefix(c.length);
  }
  return out;
}

bool is_continuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

std::string utf8(mxd::Wide_view text) {
  return mxd::to_utf8(text.substr(0, text.find(mxd::Wide_char{})));
}

std::string utf8_of_narrow(std::string_view text) {
  return utf8(mxd::narrow_to_wide(text));
}

std::string utf8_of_path(std::string_view path) {
  return utf8(mxd::path_from_bytes(path));
}

std::string shortened(std::string text, std::size_t max_length) {
  if (text.size() <= max_length) return text;
  std::size_t end = max_length;
  while (end > 0 && is_continuation(text[end])) --end;
  text.resize(end);
  return text + "…";
}

std::string escape_controls(std::string_view text) {
  return map_characters(text, [](std::string& out, char32_t c) {
    if (!is_control(c) && !is_direction(c)) return false;
    const auto code = static_cast<std::uint32_t>(c);
    out += c < 0x100 ? fmt::format("\\x{:02x}", code) : fmt::format("\\u{:04x}", code);
    return true;
  });
}

std::string escape_for_json(std::string_view json) {
  return map_characters(json, [](std::string& out, char32_t c) {
    // Those below 0x20 are escaped already, or line ends between values.
    if (c < 0x20 || (!is_control(c) && !is_direction(c))) return false;
    out += fmt::format("\\u{:04x}", static_cast<std::uint32_t>(c));
    return true;
  });
}

std::string escape_html(std::string_view text) {
  return map_characters(text, [](std::string& out, char32_t c) {
    const std::string_view reference = entity(c);
    if (reference.empty() && is_fit_for_markup(c)) return false;
    out.append(reference);
    // Control characters have visible symbols from U+2400 on.
    if (reference.empty()) append_utf8(out, c < 0x20 ? 0x2400 + c : mxd::replacement_character);
    return true;
  });
}

std::string fold_case(std::string_view text) {
  return map_characters(text, [](std::string& out, char32_t c) {
    const bool upper = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) ||
                       (c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F);
    // Upper and lower case alternate here; lower case is odd except in two ranges.
    const bool lower_is_even = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    const bool alternating_upper = c >= 0x100 && c <= 0x17E && c != 0x130 && c != 0x131 &&
                                   c != 0x138 && c != 0x149 && c != 0x178 &&
                                   (c % 2 == 0) != lower_is_even;
    if (upper) append_utf8(out, c + 0x20);
    if (c >= 0x400 && c <= 0x40F) append_utf8(out, c + 0x50);
    if (alternating_upper) append_utf8(out, c + 1);
    return upper || alternating_upper || (c >= 0x400 && c <= 0x40F);
  });
}

}  // namespace mxdinfo
