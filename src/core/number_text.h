// Numbers as text, the same whatever locale the host has set.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace mxd {

// "%d" and "%g".
std::string int_text(std::int32_t value);
std::string double_text(double value);

// The same without a string: the text goes to where there is room for the longest, and what follows
// it is returned.
inline constexpr std::size_t longest_int_text = 11;
inline constexpr std::size_t longest_double_text = 32;
char* put_int(char* to, std::int32_t value);
char* put_double(char* to, double value);

}  // namespace mxd
