// The extents that a map keeps.
#pragma once

#include <optional>

#include "outline/byte_view.h"

namespace mxd {

struct Extent {
  double xmin = 0;
  double ymin = 0;
  double xmax = 0;
  double ymax = 0;

  bool operator==(const Extent&) const = default;
};

// What the data frame of a map shows. The map's part of the stream after its layers is [from, end).
// Nothing if no extent is stored there, or none with finite bounds in order.
std::optional<Extent> find_extent(Byte_search& stream, std::uint64_t from, std::uint64_t end);

}  // namespace mxd
