#include <windows.h>

#include <string>
#include <vector>

#include "mxdinfo/cli/run.h"

namespace {

std::string utf8_argument(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  SetConsoleOutputCP(CP_UTF8);
  std::vector<std::string> arguments;
  for (int i = 0; i < argc; ++i) arguments.push_back(utf8_argument(argv[i]));
  std::vector<const char*> pointers;
  for (const std::string& argument : arguments) pointers.push_back(argument.c_str());
  return mxdinfo::run(argc, pointers.data());
}
