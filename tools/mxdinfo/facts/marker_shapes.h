// Characters of ArcMap's font for markers that are plain shapes. They look the same where the font
// is missing.
#pragma once

#include <span>
#include <string_view>

#include "symbology/symbol_classes.h"

namespace mxdinfo {

struct Marker_shape {
  struct Corner {
    double x;
    double y;
  };

  // "circle", "square", "triangle", "pentagon", "hexagon", "octagon", "star"
  std::string_view name;
  // Empty for a circle. Y is down; size 1 is the circle of radius 1.
  std::span<const Corner> corners;
  bool filled;
  // A part of the font's size.
  double size;
};

// Null if the character is none of these shapes.
const Marker_shape* shape_of(const mxd::Tmxd_char_marker_symbol& symbol);

}  // namespace mxdinfo
