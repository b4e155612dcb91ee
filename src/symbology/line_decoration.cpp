#include "symbology/line_decoration.h"

#include "core/number_text.h"
#include "core/read_helpers.h"

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
  return read_numbers(stream, unfixed_angle, flip_first, flip_all) && read_bytes(stream, bytes1) &&
         marker.read(stream, limit) && read_counted(stream, [&] {
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
    std::int32_t list_number = 0;
    for (const double position : positions) writer.real(xml_only("pos_", ++list_number), position);
  });
}

bool Tmxd_simple_line_decoration_element::copy_fields(
    const Tmxd_simple_line_decoration_element& source) {
  unfixed_angle = source.unfixed_angle;
  flip_first = source.flip_first;
  flip_all = source.flip_all;
  bytes1 = source.bytes1;
  positions = source.positions;
  return marker.clone_from(source.marker);
}

const Object_family& Tmxd_line_decoration_element::family() {
  static const Object_family family = family_of<Line_decoration_element_classes>();
  return family;
}

// The elements follow each other without gaps and are not searched for.
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
