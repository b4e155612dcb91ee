#include "target.h"

#include <cstdio>
#include <cstdlib>

namespace mxd::fuzz {

void require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

}  // namespace mxd::fuzz
