#include "rendering/legend.h"

#include "core/read_helpers.h"

namespace mxd {

bool Tmxd_legend_class::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return symbol_slot.read(stream, limit) && read_wide_string(stream, label) &&
         read_bytes(stream, bytes1, version < 2 ? 22 : 26);
}

void Tmxd_legend_class::describe(Field_writer& writer) const {
  writer.slot("symbol_slot", symbol_slot);
  writer.text("label", label);
  writer.bytes("bytes1", bytes1);
}

bool Tmxd_legend_group::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  drop_all(legend_classes, stream);
  return read_number(stream, int1) && read_wide_string(stream, label) && read_counted(stream, [&] {
           return read_into(legend_classes, std::make_unique<Tmxd_legend_class>(), stream, -1,
                            limit);
         });
}

void Tmxd_legend_group::describe(Field_writer& writer) const {
  writer.integer("int1", int1);
  writer.text("label", label);
  writer.list("legend_classes", "legend_class_", legend_classes);
}

}  // namespace mxd
