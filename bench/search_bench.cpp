// The pass that finds all class ids. Baselines: passes that do less, and a naive search.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <random>

#include "benchmarks.h"
#include "document/classes.h"
#include "storage/compound_file.h"

namespace mxd::bench {
namespace {

constexpr std::size_t large = std::size_t{64} << 20;
// The naive search is slow; its bytes per second do not depend on the size.
constexpr std::size_t small = std::size_t{1} << 18;

Byte_run random_bytes() {
  Byte_run bytes(large);
  std::mt19937_64 random(1);
  for (std::size_t i = 0; i < bytes.size(); i += sizeof(std::uint64_t)) {
    const std::uint64_t word = random();
    std::memcpy(bytes.data() + i, &word, sizeof word);
  }
  return bytes;
}

// The stream of a document, repeated.
Byte_run repeated(const Document& document) {
  Tmxd_stream_m maps;
  if (!read_named_stream(document.wide_path, from_ascii("Maps"), maps)) std::abort();
  Byte_run bytes(large);
  for (std::size_t i = 0; i < large; ++i) bytes[i] = maps.bytes()[i % maps.get_size()];
  return bytes;
}

void pass(benchmark::State& state, const Byte_run& bytes) {
  for (auto _ : state) benchmark::DoNotOptimize(known_class_scanner().find_all(bytes));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void sum(benchmark::State& state, const Byte_run& bytes) {
  for (auto _ : state) {
    std::uint64_t result = 0;
    for (std::size_t i = 0; i < bytes.size(); i += sizeof(std::uint64_t)) {
      std::uint64_t word = 0;
      std::memcpy(&word, bytes.data() + i, sizeof word);
      result += word;
    }
    benchmark::DoNotOptimize(result);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

// Searches for a byte that does not occur.
void find_byte(benchmark::State& state, const Byte_run& bytes) {
  Byte_run without = bytes;
  std::replace(without.begin(), without.end(), std::uint8_t{0xA5}, std::uint8_t{0xA4});
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::memchr(without.data(), 0xA5, without.size()));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

// Compares every id at every byte.
void naive(benchmark::State& state, const Byte_run& bytes) {
  std::vector<Guid> stored;
  for (const Guid& id : known_class_scanner().class_ids())
    stored.push_back(swap_guid_byte_order(id));
  for (auto _ : state) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i + 16 <= small; ++i) {
      Guid here;
      std::memcpy(here.bytes.data(), bytes.data() + i, 16);
      if (std::find(stored.begin(), stored.end(), here) != stored.end()) places.push_back(i);
    }
    benchmark::DoNotOptimize(places.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(small));
}

}  // namespace

void add_search_benchmarks(const Document& document) {
  static const std::vector<std::pair<std::string, Byte_run>> searched = {
      {"random", random_bytes()}, {"document", repeated(document)}};
  for (const auto& [name, bytes] : searched) {
    const auto add_one = [&](const char* what, auto function) {
      benchmark::RegisterBenchmark(
          (std::string(what) + "/" + name).c_str(),
          [function, &bytes = bytes](benchmark::State& state) { function(state, bytes); })
          ->UseRealTime();
    };
    add_one("pass", pass);
    add_one("sum", sum);
    add_one("memchr", find_byte);
    add_one("naive", naive);
  }
}

}  // namespace mxd::bench
