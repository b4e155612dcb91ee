// What is drawn along a line: markers at positions of it.
#pragma once

#include <vector>

#include "core/object_list.h"
#include "symbology/symbol.h"

namespace mxd {

class Tmxd_line_decoration_element : public Tmxd_obj {};

class Tmxd_simple_line_decoration_element final
    : public Copyable_class<Tmxd_simple_line_decoration_element, Tmxd_line_decoration_element> {
 public:
  static constexpr Class_id clsid{"533d88f3-0a1a-11d2-b27f-0000f878229e"};
  static constexpr std::string_view type = "mxd_simple_line_decoration_element";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::uint8_t unfixed_angle = 0;
  std::uint8_t flip_first = 0;
  std::uint8_t flip_all = 0;
  Byte_run bytes1;
  Tmxd_symbol_slot marker;
  std::vector<double> positions;

 protected:
  void describe(Field_writer& writer) const override;
  // True when the marker was copied.
  bool copy_fields(const Tmxd_simple_line_decoration_element& source) override;
};

struct Line_decoration_element_kind {
  using Held = Tmxd_line_decoration_element;
  static const Object_family& family();
};

class Tmxd_line_decoration final : public Copyable_class<Tmxd_line_decoration> {
 public:
  static constexpr Class_id clsid{"533d88f5-0a1a-11d2-b27f-0000f878229e"};
  static constexpr std::string_view type = "mxd_line_decoration";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Cloned_list<Line_decoration_element_kind> elements;

 protected:
  void describe(Field_writer& writer) const override;
  // Always false.
  bool copy_fields(const Tmxd_line_decoration& source) override;
};

}  // namespace mxd
