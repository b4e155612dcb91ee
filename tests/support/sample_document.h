// A made-up document.
#pragma once

#include "storage/stream.h"

namespace mxd::test {

// Small, with something of every class that is decoded.
Byte_run sample_document();

}  // namespace mxd::test
