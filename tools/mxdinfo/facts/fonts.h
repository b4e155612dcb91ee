// The fonts that a layer needs.
#pragma once

#include <set>
#include <string>

#include "outline/map_outline.h"

namespace mxdinfo {

// The names of the fonts of its labels and of the markers in its symbols.
std::set<std::string> fonts_of(const mxd::Layer_record& record);

}  // namespace mxdinfo
