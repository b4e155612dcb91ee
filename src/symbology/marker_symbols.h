// Symbols drawn at a point. In each class, fields that are not written to the outputs come last.
#pragma once

#include "storage/fixed_bytes.h"
#include "symbology/color.h"
#include "symbology/font.h"
#include "symbology/symbol_lists.h"

namespace mxd {

class Tmxd_simple_marker_symbol final
    : public Copyable_class<Tmxd_simple_marker_symbol, Tmxd_marker_symbol> {
 public:
  static constexpr Class_id clsid{"7914E5FE-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_simple_marker_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_color_slot color;
  double size = 0;
  std::int32_t simple_marker_style = 0;
  double angle = 0;
  double x_offset = 0;
  double y_offset = 0;
  std::uint8_t outline_flag = 0;
  double outline_width = 0;
  Tmxd_color_slot outline_color;

  Fixed_bytes<2> closing_bytes;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_char_marker_symbol final
    : public Copyable_class<Tmxd_char_marker_symbol, Tmxd_marker_symbol> {
 public:
  static constexpr Class_id clsid{"7914e600-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_char_marker_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t unicode = 0;
  double angle = 0;
  double size = 0;
  double x_offset = 0;
  double y_offset = 0;
  Wide_string font_name;
  Tmxd_color_slot color_slot;
  Tmxd_font font;

  double dbl1 = 0, dbl2 = 0, dbl3 = 0, dbl4 = 0;
  std::uint8_t byte1 = 0, byte2 = 0;
  Fixed_bytes<4> bytes1;
  Fixed_bytes<6> bytes2;

 protected:
  void describe(Field_writer& writer) const override;

 private:
  bool read_font(Tmxd_mxd_stream& stream);
  bool read_named_font(Tmxd_mxd_stream& stream);
};

class Tmxd_arrow_marker_symbol final
    : public Copyable_class<Tmxd_arrow_marker_symbol, Tmxd_marker_symbol> {
 public:
  static constexpr Class_id clsid{"88539431-e06e-11d1-b277-0000f878229e"};
  static constexpr std::string_view type = "mxd_arrow_marker_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  double size = 0;
  double width = 0;
  double angle = 0;
  // Written to both outputs, but never read: always empty.
  Fixed_bytes<1> bytes1;
  std::int32_t unused_uint1 = 0;
  double x_offset = 0;
  double y_offset = 0;
  Fixed_bytes<2> bytes2;
  Tmxd_color_slot color_slot;

 protected:
  void describe(Field_writer& writer) const override;
};

// The picture itself is not decoded.
class Tmxd_picture_marker_symbol final
    : public Copyable_class<Tmxd_picture_marker_symbol, Tmxd_marker_symbol> {
 public:
  static constexpr Class_id clsid{"7914E602-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_picture_marker_symbol";
  static constexpr Search in_slots = Search::ignores;

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_color_slot color_slot1;
  Tmxd_color_slot color_slot2;
  Fixed_bytes<65> bytes1;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_multilayer_marker_symbol final
    : public Copyable_class<Tmxd_multilayer_marker_symbol, Tmxd_marker_symbol> {
 public:
  static constexpr Class_id clsid{"7914E5FF-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_multilayer_marker_symbol";
  static constexpr Search in_lists = Search::factory_only;

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_marker_symbols marker_symbols;

  double dbl1 = 0, dbl2 = 0, dbl3 = 0, dbl4 = 0, dbl5 = 0, dbl6 = 0, dbl7 = 0;
  Tmxd_color_slot unused_color;
  std::int32_t int1 = 0;
  Tmxd_symbol_slot unused_symbol;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
