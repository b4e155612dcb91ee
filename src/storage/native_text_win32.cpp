#include "storage/native_text.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <climits>

namespace mxd {
namespace {

constexpr UINT library_code_page = CP_ACP;

// The length as the system takes it; 0, which converts to nothing, when it cannot.
int system_length(std::size_t length) {
  return length > std::size_t{INT_MAX} ? 0 : static_cast<int>(length);
}

}  // namespace

std::string to_narrow(Wide_view text) {
  text = text.substr(0, text.find(Wide_char{}));
  const int length = system_length(text.size());
  if (length == 0) return {};
  const int needed =
      WideCharToMultiByte(library_code_page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  if (needed <= 0) return {};
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  const int written = WideCharToMultiByte(library_code_page, 0, text.data(), length, narrow.data(),
                                          needed, nullptr, nullptr);
  return written == needed ? narrow : std::string();
}

Wide_string narrow_to_wide(std::string_view text) {
  const int length = system_length(text.size());
  if (length == 0) return {};
  const int needed = MultiByteToWideChar(library_code_page, 0, text.data(), length, nullptr, 0);
  if (needed <= 0) return {};
  Wide_string wide(static_cast<std::size_t>(needed), Wide_char{});
  const int written =
      MultiByteToWideChar(library_code_page, 0, text.data(), length, wide.data(), needed);
  return written == needed ? wide : Wide_string();
}

bool equal_ignoring_case(Wide_view left, Wide_view right) {
  return lstrcmpiW(Wide_string(left).c_str(), Wide_string(right).c_str()) == 0;
}

}  // namespace mxd
