// A made-up stream "Maps" with lists of layers.
#pragma once

#include "support/outline_records.h"

namespace mxd::test {

struct Listed_layer {
  int number;
  const char* name;
  const char* dataset;
  const char* folder;
  Bytes scales = Bytes().f64s({0, 0});
  Bytes renderer = {};
  Bytes rest = {};
};

// Takes its number and those up to nine after it.
Bytes listed_layer(const Listed_layer& layer);

// Everything that an outline has: lists, labels, queries, extents, references and losses.
Bytes listed_sample();

}  // namespace mxd::test
