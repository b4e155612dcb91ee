// The memory of the whole program, counted: for programs that link counted_memory.cpp, which
// replaces operator new.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mxd::fuzz {

// Peak memory in use since the last call of forget_peak, above what was in use then, in bytes.
std::size_t peak_memory();
void forget_peak();

// The nth allocation from now on fails, and all after it, until the next call; 0: none.
void fail_from_allocation(std::uint64_t number);

}  // namespace mxd::fuzz
