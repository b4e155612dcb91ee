#include "storage/native_path.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace mxd {
Wide_string path_from_bytes(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, nullptr, 0);
  if (needed <= 0) return {};
  Wide_string path(static_cast<std::size_t>(needed), Wide_char{});
  MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, path.data(), needed);
  return path;
}

}  // namespace mxd
