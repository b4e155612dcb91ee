#include "mxdinfo/cli/wide_path_win32.h"

#include <windows.h>

namespace mxdinfo {

std::wstring wide_path(const std::string& path) {
  const int size = MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, nullptr, 0);
  if (size <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, wide.data(), size);
  wide.pop_back();
  return wide;
}

std::wstring extended_path(const std::string& path) {
  const std::wstring given = wide_path(path);
  const DWORD size = GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
  if (size == 0) return given;
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(given.c_str(), size, full.data(), nullptr));
  if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\")) return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
  return L"\\\\?\\" + full;
}

}  // namespace mxdinfo
