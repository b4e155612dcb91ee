#include "document/map.h"

#include "document/object_search.h"

namespace mxd {

bool Tmxd_map::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (!read_wide_string(stream, name)) return false;
  // Both searches begin here; a map without a readable coordinate system still has its layers.
  const auto start = static_cast<std::int64_t>(stream.tell());
  coordinate_system.read(stream, start, limit);
  return read_layers(layers, stream, start, limit);
}

void Tmxd_map::describe(Field_writer& writer) const {
  writer.text("name", name);
  writer.list("layers", "layer_", layers);
  writer.slot("prj_crd_sys", coordinate_system);
}

const Object_family& map_family() {
  static const Object_family family({family_row<Tmxd_map>()});
  return family;
}

bool read_maps(Tmxd_maps& maps, Tmxd_mxd_stream& stream) {
  return read_all_found(maps, map_family(), stream, -1, -1);
}

}  // namespace mxd
