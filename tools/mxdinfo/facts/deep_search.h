// Searches a document's stream for a text, decoded or not.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/report.h"

namespace mxdinfo {

struct Deep_hit {
  // Null outside all maps.
  const mxd::Map_outline* map = nullptr;
  // Nothing for a part of the map that is in none of its layers.
  std::optional<Listed_layer> layer;
  // Of the text in the stream "Maps", in bytes.
  std::uint64_t position = 0;
  // The text with what is written before and after it.
  std::string context;
};

// Where the stream has the text, which must be in lower case, as UTF-16 or as ASCII: the first
// place in each layer, and in each map and the stream outside of them, that is not the layer's or
// map's name. Decoded layers for which `is_known` returns true are left out.
std::vector<Deep_hit> deep_search(const Report& report, const std::string& wanted,
                                  const std::function<bool(const Listed_layer&)>& is_known);

}  // namespace mxdinfo
