#include "symbology/line_decoration.h"

#include "core/counted_read.h"
#include "core/list_read.h"
#include "core/number_text.h"

namespace mxd {
namespace {

std::string comma_separated(const std::vector<double>& values) {
  std::string text;
  for (const double value : values) {
    if (!text.empty()) text.append(", ");
    text.append(double_text(value));
  }
  return text;
}

}  // namespace

bool Tmxd_simple_line_decoration_element::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  positions.clear();
  return read_numbers(stream, unfixed_angle, flip_first, flip_all) &&
         read_bytes(stream, 2, bytes1) && marker.read(stream, limit) && read_counted(stream, [&] {
           double position = 0;
           if (!read_number(stream, position)) return false;
           positions.push_back(position);
           return true;
         });
}

void Tmxd_simple_line_decoration_element::describe(Field_writer& writer) const {
  writer.integer("unfixed_angle", unfixed_angle);
  writer.integer("flip_first", flip_first);
  writer.integer("flip_all", flip_all);
  writer.bytes("bytes1", bytes1);
  writer.slot("marker", marker);
  writer.narrow_text(dump_only("positions"), comma_separated(positions));
  writer.group(xml_only("positions"), [&] {
    std::int32_t place = 0;
    for (const double position : positions) writer.real(xml_only("pos_", ++place), position);
  });
}

bool Tmxd_simple_line_decoration_element::copy_fields(
    const Tmxd_simple_line_decoration_element& source) {
  unfixed_angle = source.unfixed_angle;
  flip_first = source.flip_first;
  flip_all = source.flip_all;
  bytes1 = source.bytes1;
  positions = source.positions;
  return marker.copy(source.marker);
}

const Object_family& Line_decoration_element_kind::family() {
  static const Object_family family({family_row<Tmxd_simple_line_decoration_element>()});
  return family;
}

// The elements stand one right behind the other and are not searched for.
bool Tmxd_line_decoration::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  drop_all(elements, stream);
  return read_counted(stream, [&] {
    return read_into<Tmxd_line_decoration_element>(
        elements, std::make_unique<Tmxd_simple_line_decoration_element>(), stream, -1, limit);
  });
}

void Tmxd_line_decoration::describe(Field_writer& writer) const {
  writer.list("line_decorations", "line_decor_", elements);
}

bool Tmxd_line_decoration::copy_fields(const Tmxd_line_decoration& source) {
  elements = source.elements;
  return false;
}

}  // namespace mxd
