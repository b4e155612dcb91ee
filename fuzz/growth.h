// How a cost may grow with the document.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

namespace mxd::fuzz {

// Allows a quarter more for memory that grows in steps, and a constant.
inline void expect_no_faster(const char* what, std::uint64_t once, std::uint64_t now,
                             unsigned times) {
  EXPECT_LE(now, times * (once + once / 4) + 4096) << what;
}

}  // namespace mxd::fuzz
