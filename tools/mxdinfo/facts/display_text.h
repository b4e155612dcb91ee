// Text of documents, as the outputs show it.
#pragma once

#include <string>
#include <string_view>

#include "storage/text.h"

namespace mxdinfo {

// UTF-8 up to the first NUL. Invalid UTF-16 becomes U+FFFD.
std::string utf8(mxd::Wide_view text);
std::string utf8_of_narrow(std::string_view text);
std::string utf8_of_path(std::string_view path);

// The functions below take UTF-8; each invalid byte is replaced by U+FFFD.

// Longer than any name in a real document.
inline constexpr std::size_t max_name_length = 1000;

// At most max_length bytes of the text, with an ellipsis after them if that cuts it.
std::string shortened(std::string text, std::size_t max_length = max_name_length);

// Control characters, line separators and those that change the direction of writing, as \x1b or
// \u202e: a name must neither move the terminal's cursor nor begin a new line.
std::string escape_controls(std::string_view text);

// JSON text in which such characters, except line ends, are escaped as in its strings.
std::string escape_for_json(std::string_view json);

// For HTML and SVG, between tags and in quoted attributes.
std::string escape_html(std::string_view text);

// Upper case letters (Latin, Greek, Cyrillic) become lower case, for comparisons.
std::string fold_case(std::string_view text);

}  // namespace mxdinfo
