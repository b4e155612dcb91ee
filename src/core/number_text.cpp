#include "core/number_text.h"

#include <array>
#include <charconv>

namespace mxd {

std::string int_text(std::int32_t value) {
  std::array<char, 16> text;
  const char* end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), static_cast<std::size_t>(end - text.data())};
}

std::string double_text(double value) {
  constexpr int significant_digits = 6;
  std::array<char, 32> text;
  const char* end = std::to_chars(text.data(), text.data() + text.size(), value,
                                  std::chars_format::general, significant_digits)
                        .ptr;
  return {text.data(), static_cast<std::size_t>(end - text.data())};
}

}  // namespace mxd
