// How fast the library reads, searches and writes, each beside something to compare it with.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <numeric>

#include "document/known_class_ids.h"
#include "document/mxd.h"
#include "storage/compound_file.h"
#include "storage/native_path.h"

namespace mxd {
namespace {

class No_errors final : public Error_sink {
 public:
  void read_failed(const Read_error& /*error*/) override {}
};

// The document that is measured: the sample, or what VQK_BENCH_DOCUMENT names.
Wide_string document_path() {
  const char* chosen = std::getenv("VQK_BENCH_DOCUMENT");
  return path_from_bytes(chosen ? chosen : VQK_SAMPLE);
}

void copy_maps_stream(benchmark::State& state) {
  const Wide_string path = document_path();
  for (auto _ : state) {
    Tmxd_stream_m bytes;
    benchmark::DoNotOptimize(read_named_stream(path, widen("Maps"), bytes));
  }
}
BENCHMARK(copy_maps_stream);

void load_document(benchmark::State& state) {
  const Wide_string path = document_path();
  No_errors errors;
  Tmxd_mxd document;
  for (auto _ : state) benchmark::DoNotOptimize(document.load(path, errors));
}
BENCHMARK(load_document);

void save_xml(benchmark::State& state) {
  No_errors errors;
  Tmxd_mxd document;
  document.load(document_path(), errors);
  const auto out = std::filesystem::temp_directory_path() / "vqk_bench.xml";
  const Wide_string path = path_from_bytes(out.string());
  for (auto _ : state) benchmark::DoNotOptimize(document.save_xml(path));
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(out)));
  std::filesystem::remove(out);
}
BENCHMARK(save_xml);

std::vector<std::uint8_t> searched_bytes() {
  std::vector<std::uint8_t> bytes(std::size_t{64} << 20);
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  return bytes;
}

void set_throughput(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void find_class_ids(benchmark::State& state) {
  const auto bytes = searched_bytes();
  for (auto _ : state) benchmark::DoNotOptimize(known_class_ids().positions(bytes));
  set_throughput(state, bytes.size());
}
BENCHMARK(find_class_ids);

void add_up_the_same_bytes(benchmark::State& state) {
  const auto bytes = searched_bytes();
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), std::uint64_t{0}));
  }
  set_throughput(state, bytes.size());
}
BENCHMARK(add_up_the_same_bytes);

}  // namespace
}  // namespace mxd

BENCHMARK_MAIN();
