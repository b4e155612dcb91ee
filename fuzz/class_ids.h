// The ids of all classes, those included that no search looks for.
#pragma once

#include <vector>

#include "storage/guid.h"

namespace mxd::fuzz {

const std::vector<Guid>& all_class_ids();

}  // namespace mxd::fuzz
