// The class ids of everything that a load may search for.
#pragma once

#include "storage/class_id_search.h"

namespace mxd {

const Class_id_scanner& known_class_scanner();

}  // namespace mxd
