// Descriptions of symbols in words.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "symbology/symbol.h"

namespace mxdinfo {

// "simple marker, circle, #f50000, size 8 pt"
std::string symbol_text(const mxd::Tmxd_symbol* symbol);

// The layers of a multilayer symbol, the topmost first; for any other symbol, or null, itself.
std::vector<const mxd::Tmxd_symbol*> symbol_layers(const mxd::Tmxd_symbol* symbol);

// Nothing if the index is out of range.
template <std::size_t n>
std::optional<std::string_view> name_at(const std::array<const char*, n>& names,
                                        std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= n) return std::nullopt;
  return names[static_cast<std::size_t>(index)];
}

// Nothing for an unknown style.
std::optional<std::string_view> marker_style_name(std::int32_t style);
std::optional<std::string_view> line_style_name(std::int32_t style);

}  // namespace mxdinfo
