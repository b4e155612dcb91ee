// Processes many inputs with several threads; results are delivered in input order.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// What is kept of a document after its tree is destroyed.
struct Rendered_document {
  Summary summary;
  std::string text;
  // Lines about what could not be read or written.
  std::string messages;
};

// `make` runs on the worker threads and must not throw; `take` runs on the calling thread; if it
// returns false the batch ends. At most two finished documents per thread are buffered. There are
// never more threads than inputs; if fewer can be started, those do the work.
void run_batch(std::size_t count, unsigned jobs,
               const std::function<Rendered_document(std::size_t)>& make,
               const std::function<bool(Rendered_document&&)>& take);

}  // namespace mxdinfo
