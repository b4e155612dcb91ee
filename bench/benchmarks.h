// Benchmarks and their baselines. Names are "measurement/document".
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "storage/text.h"

namespace mxd::bench {

struct Document {
  std::string name;
  std::string path;
  Wide_string wide_path;
};

void add_load_benchmarks(const std::vector<Document>& documents);
void add_save_benchmarks(const std::vector<Document>& documents);
void add_search_benchmarks(const Document& document);

}  // namespace mxd::bench
