// The font of a character marker: an OLE standard font, stored as a record of its owner.
#pragma once

#include <cstdint>
#include <string>

#include "core/field_writer.h"
#include "storage/ieee_stream.h"

namespace mxd {

class Tmxd_font {
 public:
  [[nodiscard]] bool read(Tmxd_ieee_stream& stream);
  void describe(Field_writer& writer) const;

  double size_in_points() const { return size * 0.001; }
  bool italic() const { return (flags & 2) != 0; }
  bool underline() const { return (flags & 4) != 0; }
  bool strikethrough() const { return (flags & 8) != 0; }

  std::int32_t leading_value = 0;
  std::uint8_t version = 0;
  std::uint16_t charset = 0;
  std::uint8_t flags = 0;
  std::uint16_t weight = 0;
  // In thousandths of a point.
  std::int32_t size = 0;
  std::string font_name;
};

}  // namespace mxd
