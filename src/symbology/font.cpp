#include "symbology/font.h"

#include "core/read_helpers.h"

namespace mxd {

bool Tmxd_font::read(Tmxd_ieee_stream& stream) {
  constexpr Class_id standard_font("0be35203-8f91-11ce-9de3-00aa004bb851");
  return read_class_id(stream, standard_font.guid) &&
         read_numbers(stream, leading_value, version) && version == 1 &&
         read_numbers(stream, charset, flags, weight, size) && read_short_string(stream, font_name);
}

void Tmxd_font::describe(Field_writer& writer) const {
  writer.group("font", [&] {
    writer.narrow_text("font_name", font_name);
    writer.real("size", size_in_points());
  });
}

}  // namespace mxd
