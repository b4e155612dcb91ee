// The bytes of the stream "Maps", without the compound file around them.
#include "document/mxd.h"
#include "target.h"
#include "tree_walk.h"

namespace {

class No_errors final : public mxd::Load_observer {
 public:
  void read_failed(const mxd::Read_error&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mxd;
  Tmxd_stream_m bytes;
  static_cast<void>(bytes.write(data, 1, size));
  No_errors errors;
  Tmxd_mxd document;
  {
    Load load(errors, size);
    static_cast<void>(document.load_maps(bytes, {}, load));
    fuzz::require(load.budget().used() <= load.budget().limit(), "the budget is kept");
  }
  fuzz::walk_tree(reinterpret_cast<const vq_mxd_mxd*>(&document));
  document.dump(0, 2);
  static std::FILE* const file = std::tmpfile();
  std::rewind(file);
  document.write_xml(file);
  return 0;
}
