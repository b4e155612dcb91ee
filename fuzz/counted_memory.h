// The memory of the whole program, counted: for programs that link counted_memory.cpp, which
// replaces operator new.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mxd::fuzz {

// The most that was in use at a time since the last call of forget_peak, less what was in use then.
std::size_t peak_memory();
void forget_peak();

// That allocation from now on fails, and all behind it, until the next call; 0 is none.
void fail_from_allocation(std::uint64_t number);

}  // namespace mxd::fuzz
