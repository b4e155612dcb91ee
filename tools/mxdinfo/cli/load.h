// Reads one input.
#pragma once

#include <string>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

void load(const std::string& path, Report& report);

}  // namespace mxdinfo
