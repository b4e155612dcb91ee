#include "core/number_text.h"

#include <array>
#include <charconv>

namespace mxd {

char* put_int(char* to, std::int32_t value) {
  return std::to_chars(to, to + longest_int_text, value).ptr;
}

char* put_double(char* to, double value) {
  constexpr int significant_digits = 6;
  return std::to_chars(to, to + longest_double_text, value, std::chars_format::general,
                       significant_digits)
      .ptr;
}

std::string int_text(std::int32_t value) {
  std::array<char, longest_int_text> text;
  return {text.data(), put_int(text.data(), value)};
}

std::string double_text(double value) {
  std::array<char, longest_double_text> text;
  return {text.data(), put_double(text.data(), value)};
}

}  // namespace mxd
