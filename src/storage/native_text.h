// The platform's idea of equal names. Its 8-bit code page is behind to_narrow and narrow_to_wide
// (storage/text.h).
#pragma once

#include "storage/text.h"

namespace mxd {

// As the platform compares names; where it has no opinion, ASCII letters alone are folded.
bool equal_ignoring_case(Wide_view left, Wide_view right);

}  // namespace mxd
