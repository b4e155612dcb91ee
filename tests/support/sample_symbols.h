// The symbols of the sample document: one of every class at least, with values of its own.
#pragma once

#include <initializer_list>

#include "support/object_builder.h"

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

class Sample_symbols {
 public:
  explicit Sample_symbols(Object_numbers& numbers) : numbers_(numbers) {}

  // A grey of that lightness.
  Bytes rgb_color(double lightness);
  Bytes hsv_color();
  Bytes cmyk_color();

  Bytes simple_marker();
  Bytes char_marker();
  Bytes arrow_marker();
  Bytes picture_marker();
  Bytes multilayer_marker();

  Bytes simple_line(double width);
  Bytes cartographic_line();
  Bytes hash_line();
  Bytes marker_line();
  Bytes multilayer_line();

  Bytes simple_fill();
  Bytes line_fill();
  Bytes marker_fill();
  Bytes picture_fill();
  Bytes multilayer_fill();

 private:
  Bytes line_template();
  Bytes line_decoration();

  Object_numbers& numbers_;
};

}  // namespace mxd::test
