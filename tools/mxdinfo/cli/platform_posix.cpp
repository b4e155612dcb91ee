#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "mxdinfo/cli/platform.h"

namespace mxdinfo {

bool is_terminal(std::FILE* file) {
  return isatty(fileno(file)) == 1;
}

bool color_is_welcome() {
  const auto value = [](const char* name) {
    // Nothing here changes the environment.
    const char* text = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return std::string_view(text ? text : "");
  };
  return value("NO_COLOR").empty() && value("TERM") != "dumb" && !value("TERM").empty() &&
         is_terminal(stdout);
}

std::FILE* open_output(const std::string& path, Line_ends /*line_ends*/) {
  return path.empty() ? stdout : std::fopen(path.c_str(), "w");
}

std::FILE* binary_standard_input() {
  return stdin;
}

}  // namespace mxdinfo
