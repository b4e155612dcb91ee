// Paths as the system's calls take them.
#pragma once

#include <optional>
#include <string>

#include "storage/text.h"

namespace mxd {

// The bytes of a path, the way back from path_from_bytes. Nothing when the path holds a surrogate
// that is neither half of a pair nor stands for a byte.
std::optional<std::string> path_to_bytes(Wide_view path);

}  // namespace mxd
