// What renderers and legends look like in both outputs.
#include "support/golden.h"
#include "support/rendering_records.h"

namespace mxd::test {
namespace {

template <class T>
void expect_outputs(const char* section, const Bytes& record) {
  SCOPED_TRACE(section);
  Decoder decoder(record);
  T object;
  ASSERT_TRUE(read_object(object, decoder.stream, -1, -1));
  expect_golden("rendering", section, object);
  expect_prefixes_fail<T>(record);
}

template <class T>
void expect_renderer(const char* section, const Bytes& record) {
  expect_outputs<T>(section, record);
  expect_found<T, Tmxd_renderer_slot>(record);
}

// Upper bounds stand before lower ones.
const Bytes two_ranges = Bytes().i32(2).f64s({10, 1234567}).f64s({-0.5, 10});

TEST(Rendering_outputs, whole_records) {
  const Bytes classes =
      legend_class(7, 1, "a<b", line_symbol(6, 0.5)).add(legend_class(8, 2, "Path"));
  expect_outputs<Tmxd_legend_group>("legend", legend_group(5, "Roads & paths", 2, classes));
  expect_renderer<Tmxd_simple_renderer>("simple renderer", simple_renderer(4, line_symbol(9, 2)));
  const Bytes values =
      unique_value("dry", -1, -1, 5).wide("extra").add(unique_value("a<b", 1, -1, 0));
  expect_renderer<Tmxd_unique_value_renderer>(
      "unique values",
      unique_value_renderer(3, 4, Main::present, Bytes().i32(2).add(values), line_symbol(9, 2)));
  expect_renderer<Tmxd_unique_value_renderer>(
      "no main legend", unique_value_renderer(0, 3, Main::absent, Bytes().i32(0)));
  expect_renderer<Tmxd_class_breaks_renderer>("class breaks",
                                              class_breaks_renderer(30, two_ranges));
}

// The zeros of bounds that could not be read are shown, and the second name never is.
TEST(Rendering_outputs, cut_ranges) {
  const Bytes cut =
      Bytes().wide("POP").wide("hidden").add(two_ranges.prefix(two_ranges.size() - 8));
  Decoder decoder(object<Tmxd_class_breaks_renderer>(30, 2, cut));
  Tmxd_class_breaks_renderer renderer;
  EXPECT_FALSE(read_object(renderer, decoder.stream, -1, -1));
  EXPECT_EQ(renderer.wstr2, from_ascii("hidden"));
  expect_golden("rendering", "cut ranges", renderer);
}

}  // namespace
}  // namespace mxd::test
