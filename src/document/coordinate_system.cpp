#include "document/coordinate_system.h"

namespace mxd {

bool Wkt_coordinate_system::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_narrow_string(stream, wkt);
}

void Wkt_coordinate_system::describe(Field_writer& writer) const {
  writer.narrow_text("wkt", wkt);
}

bool Tmxd_unknown_coordinate_system::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_wide_string(stream, text);
}

void Tmxd_unknown_coordinate_system::describe(Field_writer& writer) const {
  writer.text("wkt", text);
}

const Object_family& Tmxd_coordinate_system::family() {
  static const Object_family family = family_of<Coordinate_system_classes>();
  return family;
}

}  // namespace mxd
