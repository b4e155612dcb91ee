// Raw bytes that the document holds and nobody interprets.
#pragma once

#include <cstdint>
#include <vector>

namespace mxd {

using Byte_run = std::vector<std::uint8_t>;

}  // namespace mxd
