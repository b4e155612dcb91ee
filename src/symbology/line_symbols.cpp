#include "symbology/line_symbols.h"

namespace mxd {

bool Tmxd_simple_line_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return color_slot.read(stream, limit) && read_numbers(stream, width, line_type) &&
         read_symbol_trailer(stream);
}

void Tmxd_simple_line_symbol::describe(Field_writer& writer) const {
  writer.slot("color_slot", color_slot);
  writer.real("width", width);
  writer.integer("line_type", line_type);
}

bool Tmxd_cartographic_line_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_numbers(stream, cap, join, width, byte1, offset) && color_slot.read(stream, limit) &&
         read_object_or_null(line_template, stream, limit, Back_reference::copy) &&
         read_object_or_null(line_decoration, stream, limit, Back_reference::copy) &&
         read_symbol_trailer(stream) && read_numbers(stream, byte2, dbl1, dbl2);
}

void Tmxd_cartographic_line_symbol::describe(Field_writer& writer) const {
  writer.integer("cap", cap);
  writer.integer("join", join);
  writer.real("width", width);
  writer.integer("byte1", byte1);
  writer.real("offset", offset);
  writer.slot("color_slot", color_slot);
  writer.object("line_template", line_template);
  writer.object("line_decoration", line_decoration);
  writer.integer("byte2", byte2);
  writer.real("dbl1", dbl1);
  writer.real("dbl2", dbl2);
}

bool Tmxd_hash_line_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (!read_numbers(stream, angle, cap, join, width, byte1)) return false;
  // The bytes are consumed even if a field before them cannot be read.
  const bool ok = read_number(stream, offset) && line_slot.read(stream, limit) &&
                  color_slot.read(stream, limit) &&
                  read_object_or_null(line_template, stream, limit, Back_reference::copy);
  return read_bytes(stream, bytes1) && ok && read_symbol_trailer(stream) &&
         read_numbers(stream, byte2, dbl1, dbl2);
}

void Tmxd_hash_line_symbol::describe(Field_writer& writer) const {
  writer.real("angle", angle);
  writer.integer("cap", cap);
  writer.integer("join", join);
  writer.real("width", width);
  writer.integer("byte1", byte1);
  writer.real("offset", offset);
  writer.slot("line_slot", line_slot);
  writer.slot("color_slot", color_slot);
  writer.object("line_template", line_template);
  writer.bytes("bytes1", bytes1);
  writer.integer("byte2", byte2);
  writer.real("dbl1", dbl1);
  writer.real("dbl2", dbl2);
}

bool Tmxd_marker_line_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_numbers(stream, leading_byte, offset) && pattern_marker.read(stream, limit) &&
         read_object_or_null(line_template, stream, -1, Back_reference::copy) &&
         read_bytes(stream, bytes1) && read_symbol_trailer(stream) && read_bytes(stream, bytes2);
}

void Tmxd_marker_line_symbol::describe(Field_writer& writer) const {
  writer.real("offset", offset);
  writer.slot("pattern_marker", pattern_marker);
  writer.object("line_template", line_template);
  writer.bytes("bytes1", bytes1);
  writer.bytes("bytes2", bytes2);
}

bool Tmxd_multilayer_line_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_symbol_trailer(stream) && line_symbols.read(stream, limit) &&
         (version < 2 || line_symbols.read_tags(stream));
}

void Tmxd_multilayer_line_symbol::describe(Field_writer& writer) const {
  writer.list("line_symbols", "line_symbol_", line_symbols);
}

}  // namespace mxd
