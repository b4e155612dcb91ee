#include "symbology/color.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "core/read_helpers.h"

namespace mxd {
namespace {

// X and Z from their L*a*b* coordinate.
double tristimulus(double f) {
  const double cube = f * f * f;
  return cube > 0.008856 ? cube : (116 * f - 16) / 903.3;
}

// Damaged data gives any number, infinite ones and NaN included.
std::uint8_t display_value(double linear) {
  if (!(linear > 0)) return 0;
  const double value = std::round(std::pow(linear, 0.5555555555555556) * 255);
  return value < 5 ? 0 : static_cast<std::uint8_t>(std::min(255.0, value));
}

// Percentages above 100 wrap around.
std::uint8_t ink_value(std::uint8_t ink, double light) {
  return static_cast<std::uint8_t>(
      static_cast<std::int32_t>(std::trunc((100.0 - ink) / 100 * 255 * light + 0.5)));
}

}  // namespace

void Tmxd_color::describe(Field_writer& writer) const {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  get_rgb(red, green, blue);
  writer.narrow_text(dump_only("color"), "red = " + int_text(red) + ",  green = " +
                                             int_text(green) + ",  blue = " + int_text(blue));
  writer.integer(xml_only("r"), red);
  writer.integer(xml_only("g"), green);
  writer.integer(xml_only("b"), blue);
  writer.boolean("dither", get_dither_flag());
  writer.boolean("no_use", get_no_use_flag());
}

bool Tmxd_lab_color::can_copy(const Tmxd_obj& source) const {
  return is_of<Tmxd_rgb_color>(source) || is_of<Tmxd_hsv_color>(source);
}

bool Tmxd_lab_color::copy_from(const Tmxd_obj& source) {
  if (!can_copy(source)) return false;
  *this = static_cast<const Tmxd_lab_color&>(source);
  return true;
}

bool Tmxd_lab_color::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_numbers(stream, stored_bytes[0], stored_bytes[1], stored_bytes[2], lightness, a, b,
                      dither, no_use);
}

std::uint8_t Tmxd_lab_color::get_rgb(std::uint8_t& red, std::uint8_t& green,
                                     std::uint8_t& blue) const {
  const double fy = (lightness + 16) / 116;
  const double fx = a / 500 + fy;
  const double fz = fy - b / 200;
  const double x = tristimulus(fx) * 0.9504559270516716;
  const double y = lightness > 7.9996247999999985 ? fy * fy * fy : lightness / 903.3;
  const double z = tristimulus(fz) * 1.0888461217873364;
  red = display_value(2.9515373 * x - 1.2894116 * y - 0.4738445 * z);
  green = display_value(1.9908566 * y - 1.0851093 * x + 0.0372026 * z);
  blue = display_value(0.0854934 * x - 0.2694964 * y + 1.0912975 * z);
  return 1;
}

bool Tmxd_cmyk_color::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_numbers(stream, leading_bytes[0], leading_bytes[1], cyan, magenta, yellow, black,
                      dither, no_use);
}

std::uint8_t Tmxd_cmyk_color::get_rgb(std::uint8_t& red, std::uint8_t& green,
                                      std::uint8_t& blue) const {
  const double light = (100.0 - black) / 100;
  red = ink_value(cyan, light);
  green = ink_value(magenta, light);
  blue = ink_value(yellow, light);
  return blue;
}

const Object_family& Tmxd_color::family() {
  static const Object_family family = family_of<Color_classes>();
  return family;
}

}  // namespace mxd
