#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "mxdinfo/cli/platform.h"

namespace mxdinfo {
namespace {

std::wstring wide_path(const std::string& path) {
  const int size = MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, wide.data(), size);
  return wide;
}

}  // namespace

bool is_terminal(std::FILE* file) {
  return _isatty(_fileno(file)) != 0;
}

bool color_is_welcome() {
  const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) <= 1 && GetConsoleMode(console, &mode) &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

std::FILE* open_output(const std::string& path, Line_ends line_ends) {
  const bool binary = line_ends == Line_ends::kept;
  if (path.empty()) {
    if (binary) _setmode(_fileno(stdout), _O_BINARY);
    return stdout;
  }
  std::FILE* file = nullptr;
  return _wfopen_s(&file, wide_path(path).c_str(), binary ? L"wb" : L"wt") == 0 ? file : nullptr;
}

std::FILE* binary_standard_input() {
  _setmode(_fileno(stdin), _O_BINARY);
  return stdin;
}

}  // namespace mxdinfo
