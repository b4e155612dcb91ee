#include "storage/long_path_win32.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace mxd {

Wide_string openable_path(const Wide_string& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  if (size <= MAX_PATH) return path;
  Wide_string full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\")) return full;
  // A server's path begins with two backslashes.
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
  return L"\\\\?\\" + full;
}

}  // namespace mxd
