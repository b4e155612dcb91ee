// Colors as the document persists them, and their conversion to 8-bit red, green and blue.
#pragma once

#include <array>

#include "core/object_slot.h"

namespace mxd {

class Tmxd_color : public Tmxd_obj {
 public:
  static const Object_family& family();
  static constexpr std::string_view empty_key = "color";

  virtual bool get_dither_flag() const { return dither == 1; }
  virtual bool get_no_use_flag() const { return no_use == 255; }
  // Always succeeds. The result is not a status; each class defines it.
  virtual std::uint8_t get_rgb(std::uint8_t& red, std::uint8_t& green,
                               std::uint8_t& blue) const = 0;

  std::uint8_t dither = 0;
  std::uint8_t no_use = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

// RGB and HSV colors are both stored as CIE L*a*b*; each can be a copy of the other.
class Tmxd_lab_color : public Tmxd_color {
 public:
  bool can_copy(const Tmxd_obj& source) const override;
  bool copy_from(const Tmxd_obj& source) override;
  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;
  // Always 1.
  std::uint8_t get_rgb(std::uint8_t& red, std::uint8_t& green, std::uint8_t& blue) const override;

  std::array<std::uint8_t, 3> stored_bytes{};
  double lightness = 0;
  double a = 0;
  double b = 0;
};

class Tmxd_rgb_color final : public Persisted_class<Tmxd_rgb_color, Tmxd_lab_color> {
 public:
  static constexpr Class_id clsid{"7ee9c496-d123-11d0-8383-080009b996cc"};
  static constexpr std::string_view type = "mxd_rgb_color";
};

class Tmxd_hsv_color final : public Persisted_class<Tmxd_hsv_color, Tmxd_lab_color> {
 public:
  static constexpr Class_id clsid{"7ee9c492-d123-11d0-8383-080009b996cc"};
  static constexpr std::string_view type = "mxd_hsv_color";
};

class Tmxd_cmyk_color final : public Copyable_class<Tmxd_cmyk_color, Tmxd_color> {
 public:
  static constexpr Class_id clsid{"7ee9c497-d123-11d0-8383-080009b996cc"};
  static constexpr std::string_view type = "mxd_cmyk_color";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;
  // The blue value.
  std::uint8_t get_rgb(std::uint8_t& red, std::uint8_t& green, std::uint8_t& blue) const override;

  std::array<std::uint8_t, 2> leading_bytes{};
  // Percentages.
  std::uint8_t cyan = 0;
  std::uint8_t magenta = 0;
  std::uint8_t yellow = 0;
  std::uint8_t black = 0;
};

using Tmxd_color_slot = Tmxd_slot<Tmxd_color>;

using Color_classes = Class_list<Tmxd_rgb_color, Tmxd_hsv_color, Tmxd_cmyk_color>;

}  // namespace mxd
