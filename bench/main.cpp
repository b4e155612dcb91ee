// vqk_bench [BENCHMARK OPTIONS] DOCUMENT...
#include <filesystem>

#include "benchmarks.h"
#include "storage/unicode.h"

int main(int argc, char** argv) {
  using mxd::bench::Document;
  benchmark::Initialize(&argc, argv);
  std::vector<Document> documents;
  for (int i = 1; i < argc; ++i) {
    const std::string path = argv[i];
    documents.push_back(
        {std::filesystem::path(path).stem().string(), path, mxd::path_from_bytes(path)});
  }
  if (documents.empty()) return 2;
  mxd::bench::add_load_benchmarks(documents);
  mxd::bench::add_save_benchmarks(documents);
  mxd::bench::add_search_benchmarks(documents.back());
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
