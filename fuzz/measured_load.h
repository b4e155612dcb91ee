// A load with all that it cost.
#pragma once

#include <cstdint>
#include <span>

#include "storage/stream.h"

namespace mxd::fuzz {

struct Work {
  bool found = false;            // the stream "Maps"
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

// Loads the document of these bytes, and writes both outputs.
Work work_of_file(const Byte_run& file);

// The same for a document that has these bytes for its stream "Maps".
Work work_of_stream(std::span<const std::uint8_t> maps);

}  // namespace mxd::fuzz
