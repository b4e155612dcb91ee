// What a system does its own way.
#pragma once

#include <cstdio>
#include <string>

namespace mxdinfo {

// Whether a terminal shows what is written.
bool is_terminal(std::FILE* file);

// Whether standard output is a terminal with colors, and NO_COLOR is not set.
bool color_is_welcome();

// Text as the system ends its lines, or bytes as they are.
enum class Line_ends { system, kept };

// Standard output, or the file that this UTF-8 path names; null when it cannot be opened.
std::FILE* open_output(const std::string& path, Line_ends line_ends);
std::FILE* binary_standard_input();

}  // namespace mxdinfo
