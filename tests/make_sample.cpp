// Writes the sample document.
#include <cstdio>

#include "support/sample_document.h"

int main(int argc, char** argv) {
  std::FILE* file = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
  if (!file) {
    std::fputs("usage: make_sample FILE\n", stderr);
    return 2;
  }
  const mxd::Byte_run bytes = mxd::test::sample_document();
  const bool ok = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && ok ? 0 : 1;
}
