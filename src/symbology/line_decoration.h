// Markers drawn at positions along a line.
#pragma once

#include <vector>

#include "core/object_list.h"
#include "storage/fixed_bytes.h"
#include "symbology/symbol.h"

namespace mxd {

class Tmxd_line_decoration_element : public Tmxd_obj {
 public:
  static const Object_family& family();
};

class Tmxd_simple_line_decoration_element final
    : public Copyable_class<Tmxd_simple_line_decoration_element, Tmxd_line_decoration_element> {
 public:
  static constexpr Class_id clsid{"533d88f3-0a1a-11d2-b27f-0000f878229e"};
  static constexpr std::string_view type = "mxd_simple_line_decoration_element";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::uint8_t unfixed_angle = 0;
  std::uint8_t flip_first = 0;
  std::uint8_t flip_all = 0;
  Fixed_bytes<2> bytes1;
  Tmxd_symbol_slot marker;
  std::vector<double> positions;

 protected:
  void describe(Field_writer& writer) const override;
  // Returns true if the marker was copied.
  bool copy_fields(const Tmxd_simple_line_decoration_element& source) override;
};

using Line_decoration_element_classes = Class_list<Tmxd_simple_line_decoration_element>;

// Calls the visitor with the element as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_line_decoration_element& element, Visitor&& visitor) {
  return visit_as(Line_decoration_element_classes(), element, std::forward<Visitor>(visitor));
}

class Tmxd_line_decoration final : public Copyable_class<Tmxd_line_decoration> {
 public:
  static constexpr Class_id clsid{"533d88f5-0a1a-11d2-b27f-0000f878229e"};
  static constexpr std::string_view type = "mxd_line_decoration";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Cloned_list<Tmxd_line_decoration_element> elements;

 protected:
  void describe(Field_writer& writer) const override;
  // Always returns false.
  bool copy_fields(const Tmxd_line_decoration& source) override;
};

}  // namespace mxd
