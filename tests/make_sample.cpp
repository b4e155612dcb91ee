// Writes a made-up document.
#include <cstdio>
#include <string_view>

#include "support/sample_document.h"

int main(int argc, char** argv) {
  const std::string_view kind = argc == 3 ? argv[1] : "";
  std::FILE* file = kind == "sample" || kind == "listed" ? std::fopen(argv[2], "wb") : nullptr;
  if (!file) {
    std::fputs("usage: make_sample sample|listed FILE\n", stderr);
    return 2;
  }
  const mxd::Byte_run bytes =
      kind == "sample" ? mxd::test::sample_document() : mxd::test::listed_document();
  const bool ok = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && ok ? 0 : 1;
}
