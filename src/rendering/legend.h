// Legends: groups with a heading, and classes with a symbol and its label.
#pragma once

#include "core/object_list.h"
#include "storage/fixed_bytes.h"
#include "symbology/symbol.h"

namespace mxd {

class Tmxd_legend_class final : public Persisted_class<Tmxd_legend_class> {
 public:
  static constexpr Class_id clsid{"167C5EA3-AF20-11D1-8817-080009EC732A"};
  static constexpr std::string_view type = "mxd_legend_class";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_symbol_slot symbol_slot;
  Wide_string label;
  Fixed_bytes<26> bytes1;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_legend_group final : public Persisted_class<Tmxd_legend_group> {
 public:
  static constexpr Class_id clsid{"167C5EA2-AF20-11D1-8817-080009EC732A"};
  static constexpr std::string_view type = "mxd_legend_group";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t int1 = 0;
  Wide_string label;
  Object_list<Tmxd_legend_class> legend_classes;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
