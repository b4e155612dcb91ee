#include "support/class_table.h"

namespace mxd::test {
#define ROW(Class, version, ...)                                                             \
  class_row<Class>(version, []([[maybe_unused]] int n, [[maybe_unused]] int mark) -> Bytes { \
    return Packed(__VA_ARGS__);                                                              \
  })

const std::vector<Class_row>& class_table() {
  static const std::vector<Class_row> rows = {
      ROW(Tmxd_rgb_color, 1, run(3), 53.24, 80.09, 67.20, byte(1), byte(1)),
      ROW(Tmxd_hsv_color, 1, run(3), 50.0, 0.0, 0.0, byte(255), byte(255)),
      ROW(Tmxd_cmyk_color, 1, run(2), byte(0), byte(50), byte(100), byte(20), byte(2), byte(0)),
      ROW(Tmxd_line_template, 1, 2.0, 2, 1.0, 2.5, 3.0, 4.0),
      ROW(Tmxd_simple_line_decoration_element, 1, byte(1), byte(0), byte(200), run(2),
          record("char_marker_symbol", 10 * n), 2, 0.25, 1.0),
      ROW(Tmxd_line_decoration, 1, 2, record("simple_line_decoration_element", 10 * n),
          record("simple_line_decoration_element", 10 * n + 1)),
      ROW(Tmxd_simple_marker_symbol, 1, record("rgb_color", 10 * n), 8.5, -3, trailer(mark), 45.0,
          1.25, -2.0, byte(200), 0.75, record("hsv_color", 10 * n + 1), run(2)),
      ROW(Tmxd_char_marker_symbol, 4, record("cmyk_color", 10 * n), 65, 90.0, 12.5, 1.0, 2.0, 3.0,
          4.0, trailer(mark), word(65535), "Arial", 5.0, 6.0, run(2), run(10),
          Bytes().guid(standard_font_id.guid), font_fields(-1, 1, 0x0E, 12500, "Symbols")),
      ROW(Tmxd_arrow_marker_symbol, 1, record("rgb_color", 10 * n), 10.0, 5.0, 30.0, -1,
          trailer(mark), 1.0, 2.0, run(2)),
      ROW(Tmxd_picture_marker_symbol, 1, record("rgb_color", 10 * n),
          record("hsv_color", 10 * n + 1), run(65)),
      ROW(Tmxd_multilayer_marker_symbol, 3, trailer(mark), 1.0, 2.0, 3.0, 4.0,
          record("rgb_color", 10 * n), 5, 6.0, record("simple_line_symbol", 10 * n + 1), 2,
          record("simple_marker_symbol", 10 * n + 2), record("picture_marker_symbol", 10 * n + 3),
          0, 5, -1, 0, 7.0, 8.0, "under", "over"),
      ROW(Tmxd_simple_line_symbol, 1, record("rgb_color", 10 * n), 0.5, -2, trailer(mark)),
      ROW(Tmxd_cartographic_line_symbol, 1, 1, -2, 3.5, byte(200), -4.0,
          record("rgb_color", 10 * n), record("line_template", 10 * n + 1),
          record("line_decoration", 10 * n + 2), trailer(mark), byte(5), 6.0, 7.0),
      ROW(Tmxd_hash_line_symbol, 1, 45.0, 1, 2, 3.0, byte(4), 5.0,
          record("simple_line_symbol", 10 * n), record("hsv_color", 10 * n + 1),
          record("line_template", 10 * n + 2), run(16), trailer(mark), byte(6), 7.0, 8.0),
      ROW(Tmxd_marker_line_symbol, 1, byte(9), 1.5, record("arrow_marker_symbol", 10 * n),
          record("line_template", 10 * n + 1), run(16), trailer(mark), run(25)),
      ROW(Tmxd_multilayer_line_symbol, 2, trailer(mark), 2, record("simple_line_symbol", 10 * n),
          record("marker_line_symbol", 10 * n + 1), 0, 5, -1, 0, "under", "over"),
      ROW(Tmxd_simple_fill_symbol, 1, record("simple_line_symbol", 10 * n),
          record("rgb_color", 10 * n + 1), trailer(mark), -1),
      ROW(Tmxd_line_fill_symbol, 1, 1.0, 2.0, record("simple_line_symbol", 10 * n),
          record("simple_line_symbol", 10 * n + 1), 4.0, 5.0, 6.0, trailer(mark)),
      ROW(Tmxd_marker_fill_symbol, 1, -7, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0,
          record("simple_marker_symbol", 10 * n), record("simple_line_symbol", 10 * n + 1),
          trailer(mark), 8.0),
      ROW(Tmxd_picture_fill_symbol, 1, record("rgb_color", 10 * n), record("hsv_color", 10 * n + 1),
          record("cmyk_color", 10 * n + 2), record("simple_line_symbol", 10 * n + 3), run(87)),
      ROW(Tmxd_multilayer_fill_symbol, 2, trailer(mark), record("rgb_color", 10 * n), 2,
          record("simple_fill_symbol", 10 * n + 1), record("picture_fill_symbol", 10 * n + 2), 0, 5,
          -1, 0, "under", "over"),
  };
  return rows;
}

}  // namespace mxd::test
