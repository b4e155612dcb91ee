// Work on many inputs with several threads, its results taken in the order of the inputs.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// What is left of a document when its tree is gone.
struct Rendered {
  Summary summary;
  std::string text;
  std::vector<Lost_object> lost;
};

// `make` is called by the threads, `take` by the caller's; false ends the batch. At no time are
// more results kept than a few for each thread.
void run_batch(std::size_t count, unsigned jobs, const std::function<Rendered(std::size_t)>& make,
               const std::function<bool(Rendered&&)>& take);

}  // namespace mxdinfo
