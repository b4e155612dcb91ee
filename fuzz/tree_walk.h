// Looks at everything that a host can see of a document.
#pragma once

#include <cstdint>

#include "vqk_file_mxd.h"

namespace mxd::fuzz {

// A figure that depends on the answers of all getters.
std::uint64_t walk_tree(const vq_mxd_mxd* document);

}  // namespace mxd::fuzz
