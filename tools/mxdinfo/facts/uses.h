// What layers use, for counts over many documents.
#pragma once

#include <string>
#include <vector>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// The names of the columns that describe a thing of the view.
std::vector<std::string> use_columns(View view, bool with_states);

struct Use {
  // One text for each column.
  std::vector<std::string> cells;
  // False for what a map uses itself.
  bool by_layer = true;
};

// Each thing once for each map or layer that uses it.
std::vector<Use> uses_of(const Report& report, View view, bool with_states);

}  // namespace mxdinfo
