// A renderer's legend as one list, each entry with the values or the range that it is drawn for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "rendering/renderer.h"
#include "symbology/symbol.h"

namespace mxdinfo {

struct Legend_range {
  double min;
  double max;
};

struct Legend_entry {
  std::string heading;
  std::string label;
  // Null where none was read.
  const mxd::Tmxd_symbol* symbol = nullptr;
  // Drawn where no other entry is.
  bool all_other_values = false;
  // Each with one text per field, or the whole text where it cannot be split.
  std::vector<std::vector<std::string>> values;
  std::optional<Legend_range> range;
};

enum class Class_order { ascending, descending };

// In the order of a table of contents. Values and ranges without a legend class have an entry
// without a symbol after the others. The order is that of a class breaks renderer's classes; its
// ranges always ascend.
std::vector<Legend_entry> legend_entries(const mxd::Tmxd_renderer& renderer, Class_order order);

// The text between the values of several fields; empty where there is none.
std::string value_separator(const mxd::Tmxd_renderer& renderer);

}  // namespace mxdinfo
