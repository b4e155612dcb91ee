// Streams "Maps" that are made to cost much. Each grows in proportion to n.
#pragma once

#include <vector>

#include "support/object_builder.h"

namespace mxd::fuzz {

struct Hostile_stream {
  const char* name;
  int n;  // for the smallest stream of a table of costs
  test::Bytes (*make)(int n);
  bool exhausts_budget = false;
};

// Their decoding costs much.
const std::vector<Hostile_stream>& decoder_streams();
// Their outlines cost much.
const std::vector<Hostile_stream>& outline_streams();
// Their reports repeat long texts and large symbols by references of a few bytes.
const std::vector<Hostile_stream>& report_streams();

inline test::Bytes repeated(int count, const test::Bytes& bytes) {
  test::Bytes result;
  for (int i = 0; i < count; ++i) result.add(bytes);
  return result;
}

}  // namespace mxd::fuzz
