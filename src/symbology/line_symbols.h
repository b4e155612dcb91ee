// Symbols drawn along a line.
#pragma once

#include "storage/fixed_bytes.h"
#include "symbology/color.h"
#include "symbology/line_decoration.h"
#include "symbology/line_template.h"
#include "symbology/symbol_lists.h"

namespace mxd {

class Tmxd_simple_line_symbol final
    : public Copyable_class<Tmxd_simple_line_symbol, Tmxd_line_symbol> {
 public:
  static constexpr Class_id clsid{"7914e5f9-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_simple_line_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_color_slot color_slot;
  double width = 0;
  std::int32_t line_type = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_cartographic_line_symbol final
    : public Copyable_class<Tmxd_cartographic_line_symbol, Tmxd_line_symbol> {
 public:
  static constexpr Class_id clsid{"7914e5fb-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_cartographic_line_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t cap = 0;
  std::int32_t join = 0;
  double width = 0;
  std::uint8_t byte1 = 0;
  double offset = 0;
  Tmxd_color_slot color_slot;
  Tmxd_line_template line_template;
  Tmxd_line_decoration line_decoration;
  std::uint8_t byte2 = 0;
  double dbl1 = 0, dbl2 = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_hash_line_symbol final : public Copyable_class<Tmxd_hash_line_symbol, Tmxd_line_symbol> {
 public:
  static constexpr Class_id clsid{"7914e5fc-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_hash_line_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  double angle = 0;
  std::int32_t cap = 0;
  std::int32_t join = 0;
  double width = 0;
  std::uint8_t byte1 = 0;
  double offset = 0;
  Tmxd_symbol_slot line_slot;
  Tmxd_color_slot color_slot;
  Tmxd_line_template line_template;
  Fixed_bytes<16> bytes1;
  std::uint8_t byte2 = 0;
  double dbl1 = 0, dbl2 = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_marker_line_symbol final
    : public Copyable_class<Tmxd_marker_line_symbol, Tmxd_line_symbol> {
 public:
  static constexpr Class_id clsid{"7914e5fd-c892-11d0-8bb6-080009ee4e41"};
  static constexpr std::string_view type = "mxd_marker_line_symbol";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  // In neither output.
  std::uint8_t leading_byte = 0;
  double offset = 0;
  Tmxd_symbol_slot pattern_marker;
  Tmxd_line_template line_template;
  Fixed_bytes<16> bytes1;
  Fixed_bytes<25> bytes2;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_multilayer_line_symbol final
    : public Copyable_class<Tmxd_multilayer_line_symbol, Tmxd_line_symbol> {
 public:
  static constexpr Class_id clsid{"7914E5FA-C892-11D0-8BB6-080009EE4E41"};
  static constexpr std::string_view type = "mxd_multilayer_line_symbol";
  static constexpr Search in_lists = Search::ignores;

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_line_symbols line_symbols;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
