#include "symbology/marker_symbols.h"

namespace mxd {

bool Tmxd_simple_marker_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return color.read(stream, limit) && read_numbers(stream, size, simple_marker_style) &&
         read_symbol_trailer(stream) &&
         read_numbers(stream, angle, x_offset, y_offset, outline_flag, outline_width) &&
         outline_color.read(stream, limit) && read_bytes(stream, closing_bytes);
}

void Tmxd_simple_marker_symbol::describe(Field_writer& writer) const {
  writer.slot("color", color);
  writer.real("size", size);
  writer.integer("simple_marker_style", simple_marker_style);
  writer.real("angle", angle);
  writer.real("x_offset", x_offset);
  writer.real("y_offset", y_offset);
  writer.integer("outline_flag", outline_flag);
  writer.real("outline_width", outline_width);
  writer.slot("outline_color", outline_color);
}

bool Tmxd_char_marker_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  constexpr std::uint16_t expected_mark = 0xFFFF;
  std::uint16_t mark = 0;
  return color_slot.read(stream, limit) &&
         read_numbers(stream, unicode, angle, size, x_offset, y_offset, dbl1, dbl2) &&
         (version != 2 || read_font(stream)) && read_symbol_trailer(stream) &&
         read_number(stream, mark) && mark == expected_mark &&
         (version < 3 || read_named_font(stream));
}

// Version 2 stores the name in the font record only.
bool Tmxd_char_marker_symbol::read_font(Tmxd_mxd_stream& stream) {
  if (!font.read(stream)) return false;
  font_name = narrow_to_wide(font.font_name);
  return true;
}

bool Tmxd_char_marker_symbol::read_named_font(Tmxd_mxd_stream& stream) {
  return read_wide_string(stream, font_name) && read_numbers(stream, dbl3, dbl4, byte1, byte2) &&
         read_bytes(stream, bytes1) && read_bytes(stream, bytes2) &&
         (version < 4 || font.read(stream));
}

void Tmxd_char_marker_symbol::describe(Field_writer& writer) const {
  writer.integer("unicode", unicode);
  writer.real("angle", angle);
  writer.real("size", size);
  writer.real("x_offset", x_offset);
  writer.real("y_offset", y_offset);
  writer.text("font_name", font_name);
  writer.slot("color_slot", color_slot);
  font.describe(writer);
}

bool Tmxd_arrow_marker_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return color_slot.read(stream, limit) && read_numbers(stream, size, width, angle, unused_uint1) &&
         read_symbol_trailer(stream) && read_numbers(stream, x_offset, y_offset) &&
         read_bytes(stream, bytes2);
}

void Tmxd_arrow_marker_symbol::describe(Field_writer& writer) const {
  writer.real("size", size);
  writer.real("width", width);
  writer.real("angle", angle);
  writer.bytes("bytes1", bytes1);
  writer.integer("unused_uint1", unused_uint1);
  writer.real("x_offset", x_offset);
  writer.real("y_offset", y_offset);
  writer.bytes("bytes2", bytes2);
  writer.slot("color_slot", color_slot);
}

bool Tmxd_picture_marker_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return color_slot1.read_or_null(stream, limit) && color_slot2.read_or_null(stream, limit) &&
         read_bytes(stream, bytes1);
}

void Tmxd_picture_marker_symbol::describe(Field_writer& writer) const {
  writer.slot("color_slot1", color_slot1);
  writer.slot("color_slot2", color_slot2);
  writer.bytes("bytes1", bytes1);
}

bool Tmxd_multilayer_marker_symbol::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_symbol_trailer(stream) && read_numbers(stream, dbl1, dbl2, dbl3, dbl4) &&
         unused_color.read(stream, limit) && read_numbers(stream, int1, dbl5) &&
         unused_symbol.read(stream, limit) && marker_symbols.read(stream, limit) &&
         read_numbers(stream, dbl6, dbl7) && (version < 3 || marker_symbols.read_tags(stream));
}

void Tmxd_multilayer_marker_symbol::describe(Field_writer& writer) const {
  writer.list("marker_symbols", "marker_symbol_", marker_symbols);
}

}  // namespace mxd
