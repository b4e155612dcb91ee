// The compound file's tables, whatever they claim.
#include "storage/compound_file.h"
#include "support/temp_file.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mxd;
  static test::Temp_file file;
  file.write({data, size});
  for (const char* name : {"Maps", "Root Entry", "Mini", ""}) {
    Tmxd_stream_m out;
    const bool found = read_named_stream(file.path(), from_ascii(name), out);
    fuzz::require(found || out.get_size() == 0, "what is not found leaves nothing");
    fuzz::require(out.get_size() <= size, "no stream is longer than its file");
  }
  return 0;
}
