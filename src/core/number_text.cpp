#include "core/number_text.h"

#include <array>
#include <charconv>

namespace mxd {

std::string int_text(std::int32_t value) {
  std::array<char, 16> text;
  const auto end = std::to_chars(text.begin(), text.end(), value).ptr;
  return {text.begin(), end};
}

std::string double_text(double value) {
  constexpr int significant_digits = 6;
  std::array<char, 32> text;
  const auto end =
      std::to_chars(text.begin(), text.end(), value, std::chars_format::general, significant_digits)
          .ptr;
  return {text.begin(), end};
}

}  // namespace mxd
