// Text of documents, as the outputs write it.
#pragma once

#include <string>
#include <string_view>

#include "storage/text.h"

namespace mxdinfo {

// UTF-8 up to the first NUL. What is no valid UTF-16 becomes U+FFFD.
std::string utf8(mxd::Wide_view text);
std::string utf8_of_narrow(std::string_view text);
std::string utf8_of_path(std::string_view path);

// The functions below take what utf8 made.

// Control characters and those that turn the direction of writing as \x1b, \u202e: a name must
// neither move the terminal's cursor nor begin a new line.
std::string on_one_line(std::string_view text);

// For HTML and SVG, between tags and in quoted attributes.
std::string in_markup(std::string_view text);

// Without the difference of capitals (Latin, Greek, Cyrillic), for comparisons.
std::string folded(std::string_view text);

}  // namespace mxdinfo
