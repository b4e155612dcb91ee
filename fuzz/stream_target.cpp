// The bytes of the stream "Maps", without the compound file around them.
#include "core/mxd_stream.h"
#include "document/known_class_scanner.h"
#include "document/mxd.h"
#include "target.h"
#include "tree_walk.h"

namespace {

class No_errors final : public mxd::Error_sink {
 public:
  void read_failed(const mxd::Read_error&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mxd;
  Tmxd_stream_m bytes;
  bytes.write(data, 1, size);
  No_errors errors;
  Tmxd_mxd document;
  {
    Tmxd_mxd_stream stream(bytes, known_class_scanner(), errors);
    if (stream.seek(0) && read_number(stream, document.int1)) read_maps(document.maps, stream);
    fuzz::require(stream.budget().used() <= stream.budget().limit(), "the budget is kept");
  }
  fuzz::walk_tree(reinterpret_cast<const vq_mxd_mxd*>(&document));
  document.dump(0, 2);
  Xml_tree tree("maps");
  for (const auto& map : document.maps) map->write_object_xml(tree.root(), "map");
  return 0;
}
