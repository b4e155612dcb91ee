// The symbols of the sample document: one of every class at least, with values of its own.
#pragma once

#include <initializer_list>

#include "support/object_builder.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::test {

// Numbers objects as they are written, as a document does.
class Object_numbers {
 public:
  template <class T>
  Bytes object(int version, const Bytes& fields) {
    return Bytes().object(T::clsid, next_++, version, fields);
  }

  int next() const { return next_; }
  int take() { return next_++; }

 private:
  int next_ = 1;
};

// A symbol's layers: the first locked, the last switched off, each with a tag.
inline Bytes layers(std::initializer_list<Bytes> symbols) {
  Bytes bytes = Bytes().i32(static_cast<std::int64_t>(symbols.size()));
  for (const Bytes& symbol : symbols) bytes.add(symbol);
  for (std::size_t i = 1; i <= symbols.size(); ++i) bytes.i32(i < symbols.size());
  for (std::size_t i = 0; i < symbols.size(); ++i) bytes.i32(i == 0);
  return bytes;
}

class Sample_symbols {
 public:
  explicit Sample_symbols(Object_numbers& numbers) : numbers_(numbers) {}

  // A gray of that lightness.
  Bytes rgb_color(double lightness) {
    return numbers_.object<Tmxd_rgb_color>(3,
                                           Packed{run(3), lightness, 0.0, 0.0, byte(0), byte(0)});
  }

  Bytes hsv_color() {
    return numbers_.object<Tmxd_hsv_color>(3,
                                           Packed{run(3), 53.24, 80.09, 67.20, byte(0), byte(255)});
  }

  Bytes cmyk_color() {
    return numbers_.object<Tmxd_cmyk_color>(
        3, Packed{run(2), byte(0), byte(50), byte(100), byte(0), byte(1), byte(0)});
  }

  Bytes simple_marker() {
    return numbers_.object<Tmxd_simple_marker_symbol>(
        2, Packed{hsv_color(), 8.0, 4, trailer(), 45.0, 1.0, -1.0, byte(1), 0.5, rgb_color(0),
                  run(2)});
  }

  Bytes char_marker() {
    constexpr int italic_and_struck_out = 2 | 8;
    return numbers_.object<Tmxd_char_marker_symbol>(
        5, Packed{rgb_color(50), 0x41, 30.0, 12.5, 2.0, -2.0, 0.0, 0.0, trailer(), word(65535),
                  "Arial", 0.0, 0.0, run(2), run(10), Bytes().guid(standard_font_id.guid),
                  font_fields(1, 1, italic_and_struck_out, 12500, "Arial")});
  }

  Bytes arrow_marker() {
    return numbers_.object<Tmxd_arrow_marker_symbol>(
        2, Packed{rgb_color(10), 6.0, 4.0, 90.0, 0, trailer(), 0.0, 0.0, run(2)});
  }

  Bytes picture_marker() {
    return numbers_.object<Tmxd_picture_marker_symbol>(
        9, Packed{rgb_color(0), rgb_color(100), run(65)});
  }

  Bytes multilayer_marker() {
    return numbers_.object<Tmxd_multilayer_marker_symbol>(
        3, Packed{trailer(), 1.0, 2.0, 3.0, 4.0, rgb_color(20), 5, 6.0, simple_marker(),
                  layers({char_marker(), arrow_marker(), picture_marker()}), 7.0, 8.0, "letter",
                  "arrow", "picture"});
  }

  Bytes simple_line(double width) {
    return numbers_.object<Tmxd_simple_line_symbol>(1, Packed{rgb_color(60), width, 1, trailer()});
  }

  Bytes cartographic_line() {
    return numbers_.object<Tmxd_cartographic_line_symbol>(
        2, Packed{1, 2, 1.25, byte(1), -3.0, cmyk_color(), line_template(), line_decoration(),
                  trailer(), byte(0), 10.0, 0.0});
  }

  Bytes hash_line() {
    return numbers_.object<Tmxd_hash_line_symbol>(
        2, Packed{60.0, 0, 0, 5.0, byte(1), 0.75, simple_line(0.25), rgb_color(30), line_template(),
                  run(16), trailer(), byte(0), 10.0, 0.0});
  }

  Bytes marker_line() {
    return numbers_.object<Tmxd_marker_line_symbol>(
        2,
        Packed{byte(0), 2.5, simple_marker(), Bytes().null_object(), run(16), trailer(), run(25)});
  }

  Bytes multilayer_line() {
    return numbers_.object<Tmxd_multilayer_line_symbol>(
        2, Packed{trailer(),
                  layers({simple_line(0.5), cartographic_line(), hash_line(), marker_line()}),
                  "bank", "water", "hash", "marker"});
  }

  Bytes simple_fill() {
    return numbers_.object<Tmxd_simple_fill_symbol>(
        1, Packed{simple_line(0.4), rgb_color(90), trailer(), 0});
  }

  Bytes line_fill() {
    return numbers_.object<Tmxd_line_fill_symbol>(
        2, Packed{0.0, 0.0, simple_line(0.6), simple_line(0.7), 135.0, 1.0, 5.0, trailer()});
  }

  Bytes marker_fill() {
    return numbers_.object<Tmxd_marker_fill_symbol>(
        2,
        Packed{1, 3.0, 4.0, 10.0, 12.0, 0.0, 0.0, char_marker(), simple_line(0.8), trailer(), 0.0});
  }

  Bytes picture_fill() {
    return numbers_.object<Tmxd_picture_fill_symbol>(
        8, Packed{rgb_color(0), rgb_color(50), rgb_color(100), simple_line(0.9), run(87)});
  }

  Bytes multilayer_fill() {
    return numbers_.object<Tmxd_multilayer_fill_symbol>(
        2, Packed{trailer(), rgb_color(70), layers({line_fill(), picture_fill()}), "hatching",
                  "picture"});
  }

 private:
  Bytes line_template() {
    return numbers_.object<Tmxd_line_template>(1, Packed{1.5, 2, 4.0, 1.0, 2.0, 3.0});
  }

  Bytes line_decoration() {
    const Bytes element = numbers_.object<Tmxd_simple_line_decoration_element>(
        1, Packed{byte(0), byte(1), byte(0), run(2), arrow_marker(), 2, 0.0, 1.0});
    return numbers_.object<Tmxd_line_decoration>(1, Packed{1, element});
  }

  Object_numbers& numbers_;
};

}  // namespace mxd::test
