#include "rendering/simple_renderer.h"

#include "core/object_read.h"

namespace mxd {

bool Tmxd_simple_renderer::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return symbol_slot.read(stream, limit) && read_object(legend_group, stream, -1, limit);
}

void Tmxd_simple_renderer::describe(Field_writer& writer) const {
  writer.slot("symbol_slot", symbol_slot);
  writer.object("legend_group", legend_group);
}

}  // namespace mxd
