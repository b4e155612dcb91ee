// Damaged compound files.
#pragma once

#include <string>
#include <vector>

#include "support/compound_builder.h"

namespace mxd::test {

// What read_named_stream() gets of the stream "Maps": a number of bytes from its start, or one of
// these.
inline constexpr std::size_t all_bytes = ~std::size_t{0};
inline constexpr std::size_t unreadable = all_bytes - 1;
inline constexpr std::size_t unspecified = all_bytes - 2;

struct Damaged_file {
  std::string name;
  Compound_file file;
  std::size_t kept;
};

// The size of "Maps" must be a multiple of 512 and at least 9216. Its content is noise(maps_size).
std::vector<Damaged_file> damaged_files(std::size_t maps_size);

}  // namespace mxd::test
