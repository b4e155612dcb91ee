// Paths that only some systems have.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/temp_file.h"

namespace mxd::test {

// What is no file that a document could be read from, each with what it is.
std::vector<std::pair<std::string, Wide_string>> special_files(const Temp_file& file);

// New files beside that one whose names are bytes of no encoding, where the system has such names.
std::vector<Wide_string> undecodable_files(const Temp_file& file);

}  // namespace mxd::test
