// A load with all that it cost.
#pragma once

#include <cstdint>

#include "storage/stream.h"
#include "storage/text.h"

namespace mxd::fuzz {

struct Work {
  bool loaded = false;
  std::uint64_t bytes_read = 0;  // of the file
  std::uint64_t spent = 0;       // of the budget
  std::uint64_t limit = 0;       // of the budget
  bool exhausted = false;        // the budget
  std::uint64_t objects = 0;
  std::uint64_t search_steps = 0;
  std::uint64_t errors = 0;  // lines
  std::uint64_t output = 0;  // bytes of dump and XML
  std::uint64_t memory = 0;  // bytes, the most at a time
};

// Loads the document at the path as a host would, and writes both outputs.
Work work_of_file(const Wide_string& path);

// The same for a document that has these bytes for its stream "Maps".
Work work_of_stream(const Byte_run& maps);

}  // namespace mxd::fuzz
