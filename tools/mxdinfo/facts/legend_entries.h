// A renderer's legend as one list, each entry with the values or the range that it is drawn for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "outline/feature_facts.h"
#include "rendering/renderer_classes.h"

namespace mxdinfo {

struct Legend_range {
  double min;
  double max;
};

struct Legend_entry {
  // Null for values and ranges without a legend class.
  const mxd::Tmxd_legend_group* group = nullptr;
  std::string label;
  // Null if none was read.
  const mxd::Tmxd_symbol* symbol = nullptr;
  // Drawn where no other entry is.
  bool all_other_values = false;
  // Each with one text per field, or the whole text if it cannot be split.
  std::vector<std::vector<std::string>> values;
  std::optional<Legend_range> range;
};

// In the order of a table of contents. Values and ranges without a legend class have an entry
// without a symbol after the others. Ranges are taken to ascend unless the document says otherwise.
std::vector<Legend_entry> legend_entries(const mxd::Tmxd_renderer& renderer,
                                         const mxd::Feature_facts& facts);

// "10 to 50", "all other values", "capital, yes; town, no", or empty.
std::string classified_text(const Legend_entry& entry);

}  // namespace mxdinfo
