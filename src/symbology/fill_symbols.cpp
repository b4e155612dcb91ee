#include "symbology/fill_symbols.h"

namespace mxd {

bool Tmxd_simple_fill_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return outline.read(stream, limit) && color_slot.read(stream, limit) &&
         read_symbol_trailer(stream) && read_number(stream, int1);
}

void Tmxd_simple_fill_symbol::describe(Field_writer& writer) const {
  writer.slot("outline", outline);
  writer.slot("color_slot", color_slot);
  writer.integer("int1", int1);
}

bool Tmxd_simple_fill_symbol::copy_fields(const Tmxd_simple_fill_symbol& source) {
  Tmxd_symbol::operator=(source);
  int1 = source.int1;
  const bool outline_copied = outline.clone_from(source.outline);
  return color_slot.clone_from(source.color_slot) && outline_copied;
}

bool Tmxd_line_fill_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_numbers(stream, unused_dbl1, unused_dbl2) && pattern.read(stream, limit) &&
         outline.read(stream, limit) && read_numbers(stream, angle, offset, separation) &&
         read_symbol_trailer(stream);
}

void Tmxd_line_fill_symbol::describe(Field_writer& writer) const {
  writer.real("unused_dbl1", unused_dbl1);
  writer.real("unused_dbl2", unused_dbl2);
  writer.slot("pattern", pattern);
  writer.slot("outline", outline);
  writer.real("angle", angle);
  writer.real("offset", offset);
  writer.real("separation", separation);
}

bool Tmxd_line_fill_symbol::copy_fields(const Tmxd_line_fill_symbol& source) {
  unused_dbl1 = source.unused_dbl1;
  unused_dbl2 = source.unused_dbl2;
  angle = source.angle;
  offset = source.offset;
  separation = source.separation;
  const bool pattern_copied = pattern.clone_from(source.pattern);
  return outline.clone_from(source.outline) && pattern_copied;
}

bool Tmxd_marker_fill_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_numbers(stream, random, offset_x, offset_y, separation_x, separation_y, dbl1, dbl2) &&
         marker_slot.read(stream, limit) && outline_slot.read(stream, limit) &&
         read_symbol_trailer(stream) && read_number(stream, dbl3);
}

void Tmxd_marker_fill_symbol::describe(Field_writer& writer) const {
  writer.integer("random", random);
  writer.real("offset_x", offset_x);
  writer.real("offset_y", offset_y);
  writer.real("separation_x", separation_x);
  writer.real("separation_y", separation_y);
  writer.real("dbl1", dbl1);
  writer.real("dbl2", dbl2);
  writer.slot("marker_slot", marker_slot);
  writer.slot("outline_slot", outline_slot);
  writer.real("dbl3", dbl3);
}

bool Tmxd_picture_fill_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return color_slot1.read_or_null(stream, limit) && color_slot2.read_or_null(stream, limit) &&
         color_slot3.read_or_null(stream, limit) && outline.read(stream, limit) &&
         read_bytes(stream, bytes1);
}

void Tmxd_picture_fill_symbol::describe(Field_writer& writer) const {
  writer.slot("color_slot1", color_slot1);
  writer.slot("color_slot2", color_slot2);
  writer.slot("color_slot3", color_slot3);
  writer.slot("outline", outline);
  writer.bytes("bytes1", bytes1);
}

bool Tmxd_multilayer_fill_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_symbol_trailer(stream) && unused_color.read(stream, limit) &&
         fill_symbols.read(stream, limit) && (version < 2 || fill_symbols.read_tags(stream));
}

void Tmxd_multilayer_fill_symbol::describe(Field_writer& writer) const {
  writer.slot("unused_color", unused_color);
  writer.list("fill_symbols", "fill_symbol_", fill_symbols);
}

}  // namespace mxd
