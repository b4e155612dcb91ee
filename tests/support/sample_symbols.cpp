#include "support/sample_symbols.h"

#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::test {
namespace {

constexpr Class_id standard_font_id{"0be35203-8f91-11ce-9de3-00aa004bb851"};

Bytes lab_fields(double lightness, double a, double b) {
  return Bytes().counting(3).f64s({lightness, a, b});
}

Bytes font() {
  constexpr int italic_and_struck_out = 2 | 8;
  return Bytes()
      .guid(standard_font_id.guid)
      .i32(1)
      .u8(1)
      .u16(204)
      .u8(italic_and_struck_out)
      .u16(700)
      .i32(12500)
      .u8(5)
      .raw("Arial");
}

// A symbol's layers: the first locked, the last switched off, each with a tag.
Bytes layers(std::initializer_list<Bytes> symbols) {
  Bytes bytes = Bytes().i32(static_cast<std::int64_t>(symbols.size()));
  for (const Bytes& symbol : symbols) bytes.add(symbol);
  for (std::size_t i = 1; i <= symbols.size(); ++i) bytes.i32(i < symbols.size());
  for (std::size_t i = 0; i < symbols.size(); ++i) bytes.i32(i == 0);
  return bytes;
}

Bytes tags(std::initializer_list<const char*> texts) {
  Bytes bytes;
  for (const char* text : texts) bytes.wide(text);
  return bytes;
}

}  // namespace

Bytes Sample_symbols::rgb_color(double lightness) {
  return numbers_.object<Tmxd_rgb_color>(3, lab_fields(lightness, 0, 0).u8(0).u8(0));
}

Bytes Sample_symbols::hsv_color() {
  return numbers_.object<Tmxd_hsv_color>(3, lab_fields(53.24, 80.09, 67.20).u8(0).u8(255));
}

Bytes Sample_symbols::cmyk_color() {
  return numbers_.object<Tmxd_cmyk_color>(
      3, Bytes().counting(2).u8(0).u8(50).u8(100).u8(0).u8(1).u8(0));
}

Bytes Sample_symbols::simple_marker() {
  const Bytes fields = Bytes()
                           .add(hsv_color())
                           .f64(8)
                           .i32(4)
                           .trailer()
                           .f64s({45, 1, -1})
                           .u8(1)
                           .f64(0.5)
                           .add(rgb_color(0))
                           .counting(2);
  return numbers_.object<Tmxd_simple_marker_symbol>(2, fields);
}

Bytes Sample_symbols::char_marker() {
  const Bytes fields = Bytes()
                           .add(rgb_color(50))
                           .i32(0x41)
                           .f64s({30, 12.5, 2, -2, 0, 0})
                           .trailer()
                           .u16(65535)
                           .wide("Arial")
                           .f64s({0, 0})
                           .counting(2)
                           .counting(10)
                           .add(font());
  return numbers_.object<Tmxd_char_marker_symbol>(5, fields);
}

Bytes Sample_symbols::arrow_marker() {
  const Bytes fields =
      Bytes().add(rgb_color(10)).f64s({6, 4, 90}).i32(0).trailer().f64s({0, 0}).counting(2);
  return numbers_.object<Tmxd_arrow_marker_symbol>(2, fields);
}

Bytes Sample_symbols::picture_marker() {
  const Bytes fields = Bytes().add(rgb_color(0)).add(rgb_color(100)).counting(65);
  return numbers_.object<Tmxd_picture_marker_symbol>(9, fields);
}

Bytes Sample_symbols::multilayer_marker() {
  const Bytes fields = Bytes()
                           .trailer()
                           .f64s({1, 2, 3, 4})
                           .add(rgb_color(20))
                           .i32(5)
                           .f64(6)
                           .add(simple_marker())
                           .add(layers({char_marker(), arrow_marker(), picture_marker()}))
                           .f64s({7, 8})
                           .add(tags({"letter", "arrow", "picture"}));
  return numbers_.object<Tmxd_multilayer_marker_symbol>(3, fields);
}

Bytes Sample_symbols::line_template() {
  const Bytes fields = Bytes().f64(1.5).i32(2).f64s({4, 1, 2, 3});
  return numbers_.object<Tmxd_line_template>(1, fields);
}

Bytes Sample_symbols::line_decoration() {
  const Bytes element_fields =
      Bytes().u8(0).u8(1).u8(0).counting(2).add(arrow_marker()).i32(2).f64s({0, 1});
  const Bytes element = numbers_.object<Tmxd_simple_line_decoration_element>(1, element_fields);
  return numbers_.object<Tmxd_line_decoration>(1, Bytes().i32(1).add(element));
}

Bytes Sample_symbols::simple_line(double width) {
  const Bytes fields = Bytes().add(rgb_color(60)).f64(width).i32(1).trailer();
  return numbers_.object<Tmxd_simple_line_symbol>(1, fields);
}

Bytes Sample_symbols::cartographic_line() {
  const Bytes fields = Bytes()
                           .i32(1)
                           .i32(2)
                           .f64(1.25)
                           .u8(1)
                           .f64(-3)
                           .add(cmyk_color())
                           .add(line_template())
                           .add(line_decoration())
                           .trailer()
                           .u8(0)
                           .f64s({10, 0});
  return numbers_.object<Tmxd_cartographic_line_symbol>(2, fields);
}

Bytes Sample_symbols::hash_line() {
  const Bytes fields = Bytes()
                           .f64(60)
                           .i32(0)
                           .i32(0)
                           .f64(5)
                           .u8(1)
                           .f64(0.75)
                           .add(simple_line(0.25))
                           .add(rgb_color(30))
                           .add(line_template())
                           .counting(16)
                           .trailer()
                           .u8(0)
                           .f64s({10, 0});
  return numbers_.object<Tmxd_hash_line_symbol>(2, fields);
}

Bytes Sample_symbols::marker_line() {
  const Bytes fields =
      Bytes().u8(0).f64(2.5).add(simple_marker()).null_object().counting(16).trailer().counting(25);
  return numbers_.object<Tmxd_marker_line_symbol>(2, fields);
}

Bytes Sample_symbols::multilayer_line() {
  const Bytes fields =
      Bytes()
          .trailer()
          .add(layers({simple_line(0.5), cartographic_line(), hash_line(), marker_line()}))
          .add(tags({"bank", "water", "hash", "marker"}));
  return numbers_.object<Tmxd_multilayer_line_symbol>(2, fields);
}

Bytes Sample_symbols::simple_fill() {
  const Bytes fields = Bytes().add(simple_line(0.4)).add(rgb_color(90)).trailer().i32(0);
  return numbers_.object<Tmxd_simple_fill_symbol>(1, fields);
}

Bytes Sample_symbols::line_fill() {
  const Bytes fields =
      Bytes().f64s({0, 0}).add(simple_line(0.6)).add(simple_line(0.7)).f64s({135, 1, 5}).trailer();
  return numbers_.object<Tmxd_line_fill_symbol>(2, fields);
}

Bytes Sample_symbols::marker_fill() {
  const Bytes fields = Bytes()
                           .i32(1)
                           .f64s({3, 4, 10, 12, 0, 0})
                           .add(char_marker())
                           .add(simple_line(0.8))
                           .trailer()
                           .f64(0);
  return numbers_.object<Tmxd_marker_fill_symbol>(2, fields);
}

Bytes Sample_symbols::picture_fill() {
  const Bytes fields = Bytes()
                           .add(rgb_color(0))
                           .add(rgb_color(50))
                           .add(rgb_color(100))
                           .add(simple_line(0.9))
                           .counting(87);
  return numbers_.object<Tmxd_picture_fill_symbol>(8, fields);
}

Bytes Sample_symbols::multilayer_fill() {
  const Bytes fields = Bytes()
                           .trailer()
                           .add(rgb_color(70))
                           .add(layers({line_fill(), picture_fill()}))
                           .add(tags({"hatching", "picture"}));
  return numbers_.object<Tmxd_multilayer_fill_symbol>(2, fields);
}

}  // namespace mxd::test
