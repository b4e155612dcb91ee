// Numbers as text, independent of the host's locale.
#pragma once

#include <cstdint>
#include <string>

namespace mxd {

// Append the number as printf() writes it with "%d" and "%g" in the C locale.
void append_int(std::string& out, std::int32_t value);
void append_double(std::string& out, double value);

std::string int_text(std::int32_t value);
std::string double_text(double value);

}  // namespace mxd
