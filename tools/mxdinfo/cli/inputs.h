// The documents to read: files, folders, lists of files.
#pragma once

#include <string>
#include <vector>

#include "mxdinfo/cli/options.h"

namespace mxdinfo {

// A path in UTF-8 (off Windows any bytes), or "-" for standard input.
struct Inputs {
  std::vector<std::string> paths;
  // Folders and lists that could not be read.
  std::vector<std::string> failures;
  bool single = false;
};

Inputs find_inputs(const Options& options);

// Whether the file stands among the inputs, under whatever name.
bool is_input(const std::string& file, const Inputs& inputs);

}  // namespace mxdinfo
