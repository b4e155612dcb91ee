// Streams made to cost much when their outline is read. Each grows to twice and four times its
// size, and what is counted must not grow faster; nothing here depends on a clock.
#include <gtest/gtest.h>

#include <cstdio>

#include "counted_memory.h"
#include "growth.h"
#include "hostile_streams.h"
#include "support/outline_checks.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

struct Cost {
  std::uint64_t steps = 0;
  std::uint64_t records = 0;
  std::uint64_t memory = 0;
};

Cost cost_of(const Bytes& stream) {
  Tmxd_mxd document;
  load_maps(document, stream.data());
  forget_peak();
  const std::uint64_t before = peak_memory();
  const Outline outline = read_outline(document, {stream.data(), stream.data(), stream.data()});
  Cost cost{outline.steps, 0, peak_memory() - before};
  for (const Map_outline& map : outline.maps) cost.records += map.records.size();
  EXPECT_EQ(outline_fault(outline, stream.size()), "");
  return cost;
}

TEST(Costs, of_outlines_grow_with_the_stream) {
  for (const Hostile_stream& row : outline_streams()) {
    SCOPED_TRACE(row.name);
    Cost once;
    for (const int times : {1, 2, 4}) {
      const Bytes stream = row.make(times * row.n);
      const Cost cost = cost_of(stream);
      std::printf("| %s | %zu | %llu | %llu | %llu |\n", row.name, stream.size(),
                  static_cast<unsigned long long>(cost.steps),
                  static_cast<unsigned long long>(cost.records),
                  static_cast<unsigned long long>(cost.memory));
      if (times == 1) once = cost;
      constexpr std::size_t max_steps_per_byte = 6;
      EXPECT_LE(cost.steps, max_steps_per_byte * stream.size());
      const auto factor = static_cast<unsigned>(times);
      expect_no_faster("steps", once.steps, cost.steps, factor);
      expect_no_faster("records", once.records, cost.records, factor);
      expect_no_faster("memory", once.memory, cost.memory, factor);
    }
  }
}

}  // namespace
}  // namespace mxd::fuzz
