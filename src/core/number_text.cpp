#include "core/number_text.h"

#include <array>
#include <charconv>

namespace mxd {

void append_int(std::string& out, std::int32_t value) {
  std::array<char, 11> text;
  out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

void append_double(std::string& out, double value) {
  constexpr int significant_digits = 6;
  std::array<char, 32> text;
  out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                        std::chars_format::general, significant_digits)
                              .ptr);
}

std::string int_text(std::int32_t value) {
  std::string text;
  append_int(text, value);
  return text;
}

std::string double_text(double value) {
  std::string text;
  append_double(text, value);
  return text;
}

}  // namespace mxd
