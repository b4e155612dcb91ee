// UTF-8 and UTF-16. Invalid input is no error: the decoders report it and go on with the next byte
// or unit.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "storage/text.h"

namespace mxd {

inline constexpr char32_t replacement_character = 0xFFFD;

struct Code_point {
  char32_t value = replacement_character;
  std::size_t length = 1;  // bytes or units
  bool valid = false;      // if not: the replacement character for one byte or unit
};

// The code point at the start of the text, which must not be empty.
Code_point first_code_point(std::string_view utf8);
Code_point first_code_point(Wide_view utf16);

// The code point must be valid: at most 0x10FFFF and not a surrogate.
void append_utf8(std::string& out, char32_t code_point);
void append_utf16(Wide_string& out, char32_t code_point);

// Lone surrogates become replacement characters.
std::string to_utf8(Wide_view utf16);

// A path given as bytes is not always UTF-8. Each byte that is not part of valid UTF-8 becomes the
// lone surrogate 0xDC00 + byte, so that path_to_bytes() restores it.
Wide_string path_from_bytes(std::string_view bytes);
// Empty if the path contains any other lone surrogate.
std::optional<std::string> path_to_bytes(Wide_view path);

}  // namespace mxd
