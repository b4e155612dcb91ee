// Made-up documents.
#pragma once

#include "storage/stream.h"

namespace mxd::test {

// Small, with something of every class that is decoded.
Byte_run sample_document();

// With the lists and facts that are read beside the decoded objects.
Byte_run listed_document();

}  // namespace mxd::test
