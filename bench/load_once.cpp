// load_once DOCUMENT: loads the document between two lines on standard error; the second has the
// time in nanoseconds.
#include <chrono>
#include <cstdio>

#include "storage/unicode.h"
#include "vqk_file_mxd.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const mxd::Wide_string path = mxd::path_from_bytes(argv[1]);
  vq_mxd_mxd* document = vq_mxd_mxd_create();
  // The first write to standard output allocates its buffer; that is not part of the load.
  std::puts("");
  std::fflush(stdout);
  std::fputs("load\n", stderr);
  const auto start = std::chrono::steady_clock::now();
  const bool ok = vq_mxd_mxd_load(document, path.c_str()) != 0;
  const auto time = std::chrono::steady_clock::now() - start;
  std::fprintf(
      stderr, "done %lld\n",
      static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(time).count()));
  vq_mxd_mxd_destroy(document);
  return ok ? 0 : 1;
}
