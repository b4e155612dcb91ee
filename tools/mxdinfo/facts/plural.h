// Counts in words.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace mxdinfo {

// "1 layer", "2 layers"
inline std::string plural(std::size_t count, std::string_view one, std::string_view several) {
  return fmt::format("{} {}", count, count == 1 ? one : several);
}
inline std::string plural(std::size_t count, const std::string& one) {
  return plural(count, one, one + "s");
}

}  // namespace mxdinfo
