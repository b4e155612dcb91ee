#include "symbology/color.h"

#include <cmath>

#include "support/object_builder.h"

namespace mxd::test {
namespace {

using Rgb = std::array<std::uint8_t, 3>;

template <class Color>
Rgb lab_to_rgb(double lightness, double a, double b) {
  Color color;
  color.lightness = lightness;
  color.a = a;
  color.b = b;
  Rgb rgb{};
  EXPECT_EQ(color.get_rgb(rgb[0], rgb[1], rgb[2]), 1);
  return rgb;
}

TEST(Color, lab_to_rgb) {
  struct Case {
    double lightness, a, b;
    Rgb rgb;
  };
  // Below 5 a channel is dark; damaged data gives numbers of any kind.
  for (const Case& c : {Case{100, 0, 0, {255, 255, 255}},
                        {50, 0, 0, {100, 100, 100}},
                        {10, 0, 0, {21, 21, 21}},
                        {0.7, 0, 0, {5, 5, 5}},
                        {0.6, 0, 0, {0, 0, 0}},
                        {0, 0, 0, {0, 0, 0}},
                        {53.24, 80.09, 67.20, {245, 0, 0}},
                        {NAN, 0, 0, {0, 0, 0}},
                        {50, NAN, 0, {0, 0, 0}},
                        {50, 1e300, 0, {255, 0, 255}},
                        {INFINITY, 0, 0, {0, 0, 0}},
                        {-INFINITY, 0, 0, {0, 0, 0}}}) {
    SCOPED_TRACE(testing::Message() << c.lightness << " " << c.a << " " << c.b);
    EXPECT_EQ(lab_to_rgb<Tmxd_rgb_color>(c.lightness, c.a, c.b), c.rgb);
    EXPECT_EQ(lab_to_rgb<Tmxd_hsv_color>(c.lightness, c.a, c.b), c.rgb);
  }
}

// Every compiler and every machine must come to the same bytes.
TEST(Color, lab_to_rgb_is_the_same_everywhere) {
  std::uint64_t digest = 0xCBF29CE484222325;
  for (int i = 0; i < 10000; ++i) {
    for (const std::uint8_t byte : lab_to_rgb<Tmxd_rgb_color>(
             i / 400 * 4.15, i / 20 % 20 * 13.3 - 127, i % 20 * 13.1 - 125)) {
      digest = (digest ^ byte) * 0x100000001B3;
    }
  }
  EXPECT_EQ(digest, 11273695171803305575U);
}

TEST(Color, cmyk_to_rgb_answers_with_the_blue) {
  struct Case {
    std::uint8_t cyan, magenta, yellow, black;
    Rgb rgb;
  };
  // Percentages above 100 wrap around.
  for (const Case& c : {Case{0, 0, 0, 0, {255, 255, 255}},
                        {0, 0, 0, 100, {0, 0, 0}},
                        {100, 50, 25, 10, {0, 115, 172}},
                        {200, 0, 0, 0, {2, 255, 255}},
                        {255, 255, 255, 255, {101, 101, 101}}}) {
    Tmxd_cmyk_color color;
    color.cyan = c.cyan;
    color.magenta = c.magenta;
    color.yellow = c.yellow;
    color.black = c.black;
    Rgb rgb{};
    EXPECT_EQ(color.get_rgb(rgb[0], rgb[1], rgb[2]), c.rgb[2]);
    EXPECT_EQ(rgb, c.rgb);
  }
}

TEST(Color, flags_are_exact_values_and_lab_colors_copy_one_another) {
  Tmxd_hsv_color hsv;
  hsv.dither = 2;
  hsv.no_use = 1;
  hsv.lightness = 50;
  hsv.stored_bytes = {7, 8, 9};
  Tmxd_rgb_color rgb;
  EXPECT_FALSE(Tmxd_cmyk_color().copy_from(hsv));
  ASSERT_TRUE(rgb.copy_from(hsv));
  EXPECT_EQ(rgb.stored_bytes, hsv.stored_bytes);
  EXPECT_EQ(dump_of(rgb),
            "mxd_rgb_color = {\n  number = 0\n  reserve = 0\n  version = 0\n"
            "  color = red = 100,  green = 100,  blue = 100\n  dither = false\n"
            "  no_use = false\n}\n");
}

}  // namespace
}  // namespace mxd::test
