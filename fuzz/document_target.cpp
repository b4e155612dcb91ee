// A whole file, as a host has it: load, look at everything, save, and load something else.
#include "document/mxd.h"
#include "support/temp_file.h"
#include "target.h"
#include "tree_walk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mxd;
  static test::Temp_file file;
  static const Wide_string xml = file.beside(u"map.xml");
  static const Wide_string missing = file.beside(u"missing");
  file.write({data, size});

  vq_mxd_mxd* document = vq_mxd_mxd_create();
  const int loaded = vq_mxd_mxd_load(document, file.path().c_str());
  const std::uint64_t seen = fuzz::walk_tree(document);
  const std::string text = reinterpret_cast<const Tmxd_mxd*>(document)->dump(0, 2);
  fuzz::require(vq_mxd_mxd_save_xml(document, xml.c_str()) == 1, "the document is saved");

  fuzz::require(vq_mxd_mxd_load(document, file.path().c_str()) == loaded &&
                    fuzz::walk_tree(document) == seen &&
                    reinterpret_cast<const Tmxd_mxd*>(document)->dump(0, 2) == text,
                "a second load of the same bytes gives the same document");
  fuzz::require(vq_mxd_mxd_load(document, missing.c_str()) == 0 &&
                    vq_mxd_maps_get_size(vq_mxd_mxd_get_maps(document)) == 0,
                "a failed load leaves an empty document");
  vq_mxd_mxd_destroy(document);
  return 0;
}
