// Cells of a CSV table.
#pragma once

#include <string>
#include <string_view>

namespace mxdinfo {

// The text without control characters, quoted where needed, and never a formula.
std::string csv_cell(std::string_view text);

}  // namespace mxdinfo
