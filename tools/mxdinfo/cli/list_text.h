// The text of a list of files.
#pragma once

#include <string>

namespace mxdinfo {

// The text in UTF-8: UTF-16 and UTF-8 are recognized by their byte order marks; other bytes that
// are not UTF-8 are in the system's own encoding.
std::string list_text(std::string bytes);

}  // namespace mxdinfo
