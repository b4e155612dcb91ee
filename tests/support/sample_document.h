// The sample document: small, made up, and with something of every class that is read.
#pragma once

#include "storage/stream.h"

namespace mxd::test {

Byte_run sample_document();

}  // namespace mxd::test
