#include "mxdinfo/cli/wide_path_win32.h"

#include <windows.h>

#include "storage/long_path_win32.h"

namespace mxdinfo {

std::wstring wide_path(const std::string& path) {
  const int size = MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, nullptr, 0);
  if (size <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, wide.data(), size);
  wide.pop_back();
  return mxd::openable_path(wide);
}

}  // namespace mxdinfo
