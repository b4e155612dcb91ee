// Documents that are made to cost much.
#include <gtest/gtest.h>

#include "counted_memory.h"
#include "growth.h"
#include "hostile_streams.h"
#include "measured_load.h"
#include "support/damaged_files.h"
#include "support/outline_checks.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

TEST(Costs, of_streams_grow_with_their_size) {
  for (const Hostile_stream& row : decoder_streams()) {
    expect_linear(row.name, row.n, [&](int n) -> Costs {
      const Bytes stream = row.make(n);
      const Work work = work_of_stream(stream.data());
      EXPECT_LE(work.spent, work.limit);
      EXPECT_EQ(work.exhausted, row.exhausts_budget);
      return {{"bytes", stream.size()},     {"budget", work.spent},
              {"objects", work.objects},    {"search steps", work.search_steps},
              {"error lines", work.errors}, {"output", work.output},
              {"memory", work.memory}};
    });
  }
}

Costs costs_of_file(const Compound_file& file) {
  const Byte_run bytes = file.build();
  const Work work = work_of_file(bytes);
  EXPECT_LE(work.bytes_read, 2 * bytes.size() + 1024);
  return {{"bytes", bytes.size()}, {"bytes read", work.bytes_read}, {"memory", work.memory}};
}

Compound_file plain(int n) {
  const auto size = static_cast<std::size_t>(n) * 512;
  return Compound_file().stream("Mini", noise(700)).stream("Maps", noise(size));
}

Compound_file decoy_entries(int n) {
  Compound_file file;
  for (int i = 0; i < 4 * n; ++i) file.unused_entry("decoy");
  return file.stream("Maps", noise(5000));
}

TEST(Costs, of_files_grow_with_their_size) {
  expect_linear("intact", 100, [](int n) { return costs_of_file(plain(n)); });
  expect_linear("small pieces", 100,
                [](int n) { return costs_of_file(plain(n).cutoff(0x7FFFFFFF).fragmented(3)); });
  expect_linear("crossing chains", 100, [](int n) {
    return costs_of_file(plain(n).link("Mini", 0, 0).link("Maps", 9, 1));
  });
  expect_linear("decoy entries", 100, [](int n) { return costs_of_file(decoy_entries(n)); });
}

TEST(Costs, of_damaged_files_grow_with_their_size) {
  constexpr std::size_t size = 200 * 512;
  const std::vector<Damaged_file> files[] = {damaged_files(size), damaged_files(2 * size),
                                             damaged_files(4 * size)};
  for (std::size_t i = 0; i < files[0].size(); ++i) {
    expect_linear(files[0][i].name.c_str(), 1,
                  [&](int times) { return costs_of_file(files[times / 2][i].file); });
  }
}

TEST(Costs, of_outlines_grow_with_the_stream) {
  for (const Hostile_stream& row : outline_streams()) {
    expect_linear(row.name, row.n, [&](int n) -> Costs {
      const Bytes stream = row.make(n);
      Recorded_errors errors;
      Tmxd_mxd document;
      load_maps(document, stream.data(), errors);
      forget_peak();
      const Outline outline = read_outline(document, {stream.data(), stream.data(), stream.data()});
      const std::uint64_t memory = peak_memory();
      EXPECT_EQ(outline_fault(outline, stream.size()), "");
      constexpr std::size_t max_steps_per_byte = 6;
      EXPECT_LE(outline.steps, max_steps_per_byte * stream.size());
      std::uint64_t records = 0;
      for (const Map_outline& map : outline.maps) records += map.records.size();
      return {{"bytes", stream.size()},
              {"steps", outline.steps},
              {"records", records},
              {"memory", memory}};
    });
  }
}

}  // namespace
}  // namespace mxd::fuzz
