// How a cost may grow with the document.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

namespace mxd::fuzz {

// Each with what it is. The first is the size of the document.
using Costs = std::vector<std::pair<const char*, std::uint64_t>>;

// Prints what documents of n, of twice and of four times n cost, as rows of a table. No cost may
// grow faster than n; a quarter more is for memory that grows in steps.
inline void expect_linear(const char* name, int n, const std::function<Costs(int n)>& measure) {
  SCOPED_TRACE(name);
  Costs once;
  for (const int times : {1, 2, 4}) {
    const Costs costs = measure(times * n);
    if (times == 1) once = costs;
    std::printf("| %s |", name);
    for (std::size_t i = 0; i < costs.size(); ++i) {
      const auto& [what, cost] = costs[i];
      std::printf(" %llu |", static_cast<unsigned long long>(cost));
      const std::uint64_t allowed = once[i].second + once[i].second / 4;
      EXPECT_LE(cost, static_cast<unsigned>(times) * allowed + 4096) << what;
    }
    std::printf("\n");
  }
}

}  // namespace mxd::fuzz
