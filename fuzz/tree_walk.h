// Calls every getter for everything in a document, as a host could.
#pragma once

#include <cstdint>

#include "vqk_file_mxd.h"

namespace mxd::fuzz {

// A hash of all results.
std::uint64_t walk_tree(const vq_mxd_mxd* document);

}  // namespace mxd::fuzz
