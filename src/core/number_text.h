// Numbers as text, the same whatever locale the host has set.
#pragma once

#include <cstdint>
#include <string>

namespace mxd {

// "%d" and "%g".
std::string int_text(std::int32_t value);
std::string double_text(double value);

}  // namespace mxd
