#include "support/class_table.h"

namespace mxd::test {
namespace {

Bytes font() {
  return Packed(Bytes().guid(guid_from_text("0be35203-8f91-11ce-9de3-00aa004bb851")), -1, byte(1),
                word(204), byte(0x0E), word(700), 12500, byte(7), Bytes().raw("Symbols"));
}

}  // namespace

#define ROW(Class, name, version, ...)                                                             \
  class_row<Class>(name, version, []([[maybe_unused]] int n, [[maybe_unused]] int mark) -> Bytes { \
    return Packed(__VA_ARGS__);                                                                    \
  })

const std::vector<Class_row>& class_table() {
  static const std::vector<Class_row> rows = {
      ROW(Tmxd_rgb_color, "red", 1, run(3), 53.24, 80.09, 67.20, byte(1), byte(1)),
      ROW(Tmxd_hsv_color, "gray", 1, run(3), 50.0, 0.0, 0.0, byte(255), byte(255)),
      ROW(Tmxd_cmyk_color, "ink", 1, run(2), byte(0), byte(50), byte(100), byte(20), byte(2),
          byte(0)),
      ROW(Tmxd_line_template, "dash", 1, 2.0, 2, 1.0, 2.5, 3.0, 4.0),
      ROW(Tmxd_simple_line_decoration_element, "element", 1, byte(1), byte(0), byte(200), run(2),
          record("glyph", 10 * n), 2, 0.25, 1.0),
      ROW(Tmxd_line_decoration, "decor", 1, 2, record("element", 10 * n),
          record("element", 10 * n + 1)),
      ROW(Tmxd_simple_marker_symbol, "dot", 1, record("red", 10 * n), 8.5, -3, trailer(mark), 45.0,
          1.25, -2.0, byte(200), 0.75, record("gray", 10 * n + 1), run(2)),
      ROW(Tmxd_char_marker_symbol, "glyph", 4, record("ink", 10 * n), 65, 90.0, 12.5, 1.0, 2.0, 3.0,
          4.0, trailer(mark), word(65535), "Arial", 5.0, 6.0, run(2), run(10), font()),
      ROW(Tmxd_arrow_marker_symbol, "arrow", 1, record("red", 10 * n), 10.0, 5.0, 30.0, -1,
          trailer(mark), 1.0, 2.0, run(2)),
      ROW(Tmxd_picture_marker_symbol, "stamp", 1, record("red", 10 * n), record("gray", 10 * n + 1),
          run(65)),
      ROW(Tmxd_multilayer_marker_symbol, "markers", 3, trailer(mark), 1.0, 2.0, 3.0, 4.0,
          record("red", 10 * n), 5, 6.0, record("line", 10 * n + 1), 2, record("dot", 10 * n + 2),
          record("stamp", 10 * n + 3), 0, 5, -1, 0, 7.0, 8.0, "under", "over"),
      ROW(Tmxd_simple_line_symbol, "line", 1, record("red", 10 * n), 0.5, -2, trailer(mark)),
      ROW(Tmxd_cartographic_line_symbol, "road", 1, 1, -2, 3.5, byte(200), -4.0,
          record("red", 10 * n), record("dash", 10 * n + 1), record("decor", 10 * n + 2),
          trailer(mark), byte(5), 6.0, 7.0),
      ROW(Tmxd_hash_line_symbol, "rail", 1, 45.0, 1, 2, 3.0, byte(4), 5.0, record("line", 10 * n),
          record("gray", 10 * n + 1), record("dash", 10 * n + 2), run(16), trailer(mark), byte(6),
          7.0, 8.0),
      ROW(Tmxd_marker_line_symbol, "trail", 1, byte(9), 1.5, record("arrow", 10 * n),
          record("dash", 10 * n + 1), run(16), trailer(mark), run(25)),
      ROW(Tmxd_multilayer_line_symbol, "lines", 2, trailer(mark), 2, record("line", 10 * n),
          record("trail", 10 * n + 1), 0, 5, -1, 0, "under", "over"),
      ROW(Tmxd_simple_fill_symbol, "fill", 1, record("line", 10 * n), record("red", 10 * n + 1),
          trailer(mark), -1),
      ROW(Tmxd_line_fill_symbol, "hatch", 1, 1.0, 2.0, record("line", 10 * n),
          record("line", 10 * n + 1), 4.0, 5.0, 6.0, trailer(mark)),
      ROW(Tmxd_marker_fill_symbol, "scatter", 1, -7, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0,
          record("dot", 10 * n), record("line", 10 * n + 1), trailer(mark), 8.0),
      ROW(Tmxd_picture_fill_symbol, "tile", 1, record("red", 10 * n), record("gray", 10 * n + 1),
          record("ink", 10 * n + 2), record("line", 10 * n + 3), run(87)),
      ROW(Tmxd_multilayer_fill_symbol, "fills", 2, trailer(mark), record("red", 10 * n), 2,
          record("fill", 10 * n + 1), record("tile", 10 * n + 2), 0, 5, -1, 0, "under", "over"),
  };
  return rows;
}

}  // namespace mxd::test
