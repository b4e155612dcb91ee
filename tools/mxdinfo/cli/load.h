// Reads one input.
#pragma once

#include <string>
#include <string_view>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// Why a file that was read has no content.
inline constexpr std::string_view not_a_document = "not readable as a map document";

void load(const std::string& path, Report& report);

}  // namespace mxdinfo
