// Symbols drawn over an area.
#pragma once

#include "storage/fixed_bytes.h"
#include "symbology/color.h"
#include "symbology/symbol_lists.h"

namespace mxd {

class Tmxd_simple_fill_symbol final
    : public Copyable_class<Tmxd_simple_fill_symbol, Tmxd_fill_symbol> {
 public:
  static constexpr Class_id clsid{"7914E603-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_simple_fill_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_symbol_slot outline;
  Tmxd_color_slot color_slot;
  std::int32_t int1 = 0;

 protected:
  void describe(Field_writer& writer) const override;
  // Returns true if outline and color were copied.
  bool copy_fields(const Tmxd_simple_fill_symbol& source) override;
};

class Tmxd_line_fill_symbol final : public Copyable_class<Tmxd_line_fill_symbol, Tmxd_fill_symbol> {
 public:
  static constexpr Class_id clsid{"7914e606-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_line_fill_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  double unused_dbl1 = 0, unused_dbl2 = 0;
  Tmxd_symbol_slot pattern;
  Tmxd_symbol_slot outline;
  double angle = 0;
  double offset = 0;
  double separation = 0;

 protected:
  void describe(Field_writer& writer) const override;
  // Returns true if pattern and outline were copied. Enabled, locked and tag are not copied.
  bool copy_fields(const Tmxd_line_fill_symbol& source) override;
};

class Tmxd_marker_fill_symbol final
    : public Copyable_class<Tmxd_marker_fill_symbol, Tmxd_fill_symbol> {
 public:
  static constexpr Class_id clsid{"7914e608-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_marker_fill_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t random = 0;
  double offset_x = 0;
  double offset_y = 0;
  double separation_x = 0;
  double separation_y = 0;
  double dbl1 = 0, dbl2 = 0;
  Tmxd_symbol_slot marker_slot;
  Tmxd_symbol_slot outline_slot;
  double dbl3 = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

// The picture itself is not decoded.
class Tmxd_picture_fill_symbol final
    : public Copyable_class<Tmxd_picture_fill_symbol, Tmxd_fill_symbol> {
 public:
  static constexpr Class_id clsid{"D842B082-330C-11D2-9168-0000F87808EE"};
  static constexpr std::string_view type = "mxd_picture_fill_symbol";
  static constexpr Search in_slots = Search::ignores;

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_color_slot color_slot1;
  Tmxd_color_slot color_slot2;
  Tmxd_color_slot color_slot3;
  Tmxd_symbol_slot outline;
  Fixed_bytes<87> bytes1;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_multilayer_fill_symbol final
    : public Copyable_class<Tmxd_multilayer_fill_symbol, Tmxd_fill_symbol> {
 public:
  static constexpr Class_id clsid{"7914E604-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_multilayer_fill_symbol";
  static constexpr Search in_lists = Search::ignores;

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_color_slot unused_color;
  Tmxd_fill_symbols fill_symbols;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
