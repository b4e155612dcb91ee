// What every fuzz target has: an entry that takes any bytes, and a way to stop when they show a
// fault.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace mxd::fuzz {

// Ends the program when the condition does not hold, so that the fuzzer keeps the input.
inline void require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

}  // namespace mxd::fuzz
