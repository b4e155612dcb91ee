// Documents made to cost much. Each grows to twice and four times its size, and whatever is counted
// must not grow faster; nothing here depends on a clock.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <map>

#include "growth.h"
#include "hostile_streams.h"
#include "measured_load.h"
#include "support/damaged_files.h"
#include "support/temp_file.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

Compound_file plain(int n) {
  const auto size = static_cast<std::size_t>(n) * 512;
  return Compound_file().stream("Mini", noise(700)).stream("Maps", noise(size));
}

Compound_file small_pieces(int n) {
  return plain(n).cutoff(0x7FFFFFFF);
}

Byte_run decoy_entries(int n) {
  Compound_file file;
  for (int i = 0; i < 4 * n; ++i) file.unused_entry("decoy");
  return file.stream("Maps", noise(5000)).build();
}

struct Row {
  std::string name;
  int n;
  std::function<Byte_run(int n)> make;
  bool exhausts = false;
};

const std::vector<Damaged_file>& damaged(int n) {
  static std::map<int, std::vector<Damaged_file>> files;
  const auto [found, added] = files.try_emplace(n);
  if (added) found->second = damaged_files(static_cast<std::size_t>(n) * 512);
  return found->second;
}

std::vector<Row> file_rows() {
  std::vector<Row> result = {
      {"intact", 100, [](int n) { return plain(n).build(); }},
      {"small pieces", 100, [](int n) { return small_pieces(n).fragmented(3).build(); }},
      {"crossing chains", 100,
       [](int n) { return plain(n).link("Mini", 0, 0).link("Maps", 9, 1).build(); }},
      {"decoy entries", 100, decoy_entries},
  };
  const std::size_t count = damaged(200).size();
  for (std::size_t i = 0; i < count; ++i) {
    result.push_back(
        {damaged(200)[i].name, 200, [=](int n) { return damaged(n)[i].file.build(); }});
  }
  return result;
}

void print(const Row& row, int n, std::size_t size, const Work& work) {
  std::printf(
      "| %s | %d | %zu | %llu | %llu | %llu | %llu | %llu | %llu |\n", row.name.c_str(), n, size,
      static_cast<unsigned long long>(work.bytes_read), static_cast<unsigned long long>(work.spent),
      static_cast<unsigned long long>(work.objects),
      static_cast<unsigned long long>(work.search_steps),
      static_cast<unsigned long long>(work.output), static_cast<unsigned long long>(work.memory));
}

void expect_linear(const Row& row, Work (*measure)(const Byte_run&)) {
  SCOPED_TRACE(row.name);
  Work once;
  for (const int times : {1, 2, 4}) {
    const Byte_run bytes = row.make(times * row.n);
    const Work work = measure(bytes);
    print(row, times * row.n, bytes.size(), work);
    EXPECT_LE(work.spent, work.limit);
    EXPECT_EQ(work.exhausted, row.exhausts);
    if (times == 1) once = work;
    const auto factor = static_cast<unsigned>(times);
    expect_no_faster("bytes read", once.bytes_read, work.bytes_read, factor);
    expect_no_faster("budget", once.spent, work.spent, factor);
    expect_no_faster("objects", once.objects, work.objects, factor);
    expect_no_faster("search steps", once.search_steps, work.search_steps, factor);
    expect_no_faster("error lines", once.errors, work.errors, factor);
    expect_no_faster("output", once.output, work.output, factor);
    expect_no_faster("memory", once.memory, work.memory, factor);
  }
}

TEST(Costs, of_streams_grow_with_their_size) {
  for (const auto& [name, n, make, exhausts_budget] : decoder_streams()) {
    const auto bytes = [make = make](int count) { return make(count).data(); };
    expect_linear({name, n, bytes, exhausts_budget}, work_of_stream);
  }
}

TEST(Costs, of_files_grow_with_their_size) {
  for (const Row& row : file_rows()) {
    expect_linear(row, [](const Byte_run& bytes) {
      const Work work = work_of_file(Temp_file(bytes).path());
      EXPECT_LE(work.bytes_read, 2 * bytes.size() + 1024);
      return work;
    });
  }
}

}  // namespace
}  // namespace mxd::fuzz
