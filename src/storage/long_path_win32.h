// Paths longer than Windows allows by default.
#pragma once

#include "storage/text.h"

namespace mxd {

// The path as it is, or in the form that may have up to 32,767 units if it is long.
Wide_string openable_path(const Wide_string& path);

}  // namespace mxd
