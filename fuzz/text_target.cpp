// Text both ways: code page, paths, strings as they are stored, and numbers.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

#include "core/number_text.h"
#include "storage/platform.h"
#include "storage/unicode.h"
#include "support/object_builder.h"
#include "target.h"

namespace {

using namespace mxd;

void check_narrow(const std::string& text) {
  const Wide_string wide = narrow_to_wide(text);
  fuzz::require(wide.size() == text.size(), "every byte has a unit");
  fuzz::require(to_narrow(wide) == truncate_at_nul(text), "a byte comes back from its unit");
}

void check_wide(const Wide_string& text) {
  const std::string narrow = to_narrow(text);
  const Wide_view shown = Wide_view(text).substr(0, text.find(Wide_char{}));
  fuzz::require(narrow.size() == shown.size(), "every unit has a byte");
  fuzz::require(to_narrow(narrow_to_wide(narrow)) == narrow, "the second way changes nothing");
  fuzz::require(equal_ignoring_case(text, text), "a name is equal to itself");
  const Wide_view trimmed = trim(text);
  fuzz::require(trim(trimmed) == trimmed, "what is trimmed stays so");
}

void check_stored(std::span<const std::uint8_t> data) {
  const test::Bytes bytes =
      test::Bytes().raw({reinterpret_cast<const char*>(data.data()), data.size()});
  test::Decoder wide_decoder(bytes);
  Wide_string wide;
  if (read_wide_string(wide_decoder.stream, wide)) check_wide(wide);
  fuzz::require(wide.size() <= max_string_size / 2, "no wide string is longer than the longest");
  test::Decoder narrow_decoder(bytes);
  std::string narrow;
  if (read_narrow_string(narrow_decoder.stream, narrow)) check_narrow(narrow);
  fuzz::require(narrow.size() <= max_string_size, "no string is longer than the longest");
}

void check_number(std::span<const std::uint8_t> data) {
  double value = 0;
  if (data.size() < sizeof value) return;
  std::memcpy(&value, data.data(), sizeof value);
  char printed[64];
  std::snprintf(printed, sizeof printed, "%g", value);
  fuzz::require(double_text(value) == printed, "a number is printed as the C library does");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string narrow(reinterpret_cast<const char*>(data), size);
  Wide_string wide;
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    wide.push_back(static_cast<Wide_char>(data[i] | data[i + 1] << 8));
  }
  check_narrow(narrow);
  check_wide(wide);
  check_stored({data, size});
  check_number({data, size});
  path_from_bytes(narrow);
  guid_from_text(narrow);
  bytes_to_hex({data, data + size}, narrow.substr(0, 2));
  return 0;
}
