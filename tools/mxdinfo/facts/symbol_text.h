// Descriptions of symbols in words.
#pragma once

#include <string>
#include <vector>

#include "symbology/symbol.h"

namespace mxdinfo {

// "simple marker, circle, #f50000, size 8 pt"
std::string symbol_text(const mxd::Tmxd_symbol* symbol);

// The layers of a multilayer symbol, the topmost first; for any other symbol, or null, itself.
std::vector<const mxd::Tmxd_symbol*> symbol_layers(const mxd::Tmxd_symbol* symbol);

std::string marker_style_name(std::int32_t style);
std::string line_style_name(std::int32_t style);

}  // namespace mxdinfo
