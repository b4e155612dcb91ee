// Compares two documents or two inventories.
#pragma once

#include "mxdinfo/cli/options.h"

namespace mxdinfo {

Exit_code run_diff(const Options& options);

}  // namespace mxdinfo
