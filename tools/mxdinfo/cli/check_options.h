// Which options go together.
#pragma once

#include <string>

#include "mxdinfo/cli/options.h"

namespace mxdinfo {

// What is wrong with the options; empty if they go together.
std::string usage_error(const Options& options);

}  // namespace mxdinfo
