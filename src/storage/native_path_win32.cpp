#include "storage/native_path.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// Needs the types of windows.h.
#include <shellapi.h>

namespace mxd {
namespace {

std::string utf8(Wide_view text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  const int written = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                          static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(written));
  return bytes;
}

}  // namespace

Wide_string path_from_bytes(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, nullptr, 0);
  if (needed <= 0) return {};
  Wide_string path(static_cast<std::size_t>(needed), Wide_char{});
  MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, path.data(), needed);
  return path;
}

// The arguments that main is given are of the ANSI code page, which has no place for most names.
std::vector<std::string> command_line(int, const char* const*) {
  int count = 0;
  Wide_char** words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; words && i < count; ++i) arguments.push_back(utf8(words[i]));
  LocalFree(words);
  return arguments;
}

}  // namespace mxd
