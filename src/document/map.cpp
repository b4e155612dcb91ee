#include "document/map.h"

#include "core/read_helpers.h"

namespace mxd {

bool Tmxd_map::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (!read_wide_string(stream, name)) return false;
  // Both searches begin here. A map without a readable coordinate system still has its layers.
  const std::int64_t start = stream.position();
  static_cast<void>(coordinate_system.read(stream, start, limit));
  return read_all_found(layers, stream, start, limit);
}

void Tmxd_map::describe(Field_writer& writer) const {
  writer.text("name", name);
  writer.list("layers", "layer_", layers);
  writer.slot("prj_crd_sys", coordinate_system);
}

const Object_family& Tmxd_map::family() {
  static const Object_family family = family_of<Map_classes>();
  return family;
}

}  // namespace mxd
