// Finds the documents to read: files, folders, lists of files.
#pragma once

#include <string>
#include <vector>

#include "mxdinfo/cli/options.h"

namespace mxdinfo {

struct Inputs {
  // Each a path in UTF-8 (on POSIX systems any bytes), or "-" for standard input.
  std::vector<std::string> paths;
  // Messages about folders and lists that cannot be read.
  std::vector<std::string> failures;
  std::vector<std::string> unreadable_folders;
  bool list_failed = false;
  // One file is named; no folder and no list.
  bool single = false;
};

Inputs find_inputs(const Options& options);

// Whether the file is one of the inputs, the list of inputs, or standard input where that is read.
bool is_input(const std::string& file, const Options& options, const Inputs& inputs);

}  // namespace mxdinfo
