#include "mxdinfo/cli/list_text.h"

#include <string_view>

#include "mxdinfo/cli/platform.h"
#include "storage/unicode.h"

namespace mxdinfo {
namespace {

std::string from_utf16(std::string_view bytes, std::size_t low, std::size_t high) {
  mxd::Wide_string units;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[i + at]); };
    units.push_back(static_cast<mxd::Wide_char>(byte(low) | byte(high) << 8));
  }
  return mxd::to_utf8(units);
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const mxd::Code_point first = mxd::first_code_point(text);
    if (!first.valid) return false;
    text.remove_prefix(first.length);
  }
  return true;
}

}  // namespace

std::string list_text(std::string bytes) {
  if (bytes.starts_with("\xFF\xFE")) return from_utf16(bytes.substr(2), 0, 1);
  if (bytes.starts_with("\xFE\xFF")) return from_utf16(bytes.substr(2), 1, 0);
  if (bytes.starts_with("\xEF\xBB\xBF")) return bytes.substr(3);
  return is_utf8(bytes) ? bytes : from_system_encoding(std::move(bytes));
}

}  // namespace mxdinfo
