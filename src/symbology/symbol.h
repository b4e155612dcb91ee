// What all drawing symbols share, and the slot in which an owner holds one.
#pragma once

#include "core/object_slot.h"

namespace mxd {

// Enabled, locked and tag describe a symbol as a layer of a multilayer symbol, which sets them. No
// symbol reads them itself and neither output shows them.
class Tmxd_symbol : public Tmxd_obj {
 public:
  std::uint8_t enabled = 1;
  std::uint8_t locked = 0;
  Wide_string tag;
};

class Tmxd_marker_symbol : public Tmxd_symbol {};
class Tmxd_line_symbol : public Tmxd_symbol {};
class Tmxd_fill_symbol : public Tmxd_symbol {};

struct Symbol_kind {
  using Held = Tmxd_symbol;
  static constexpr std::string_view empty_key = "symbol";
  static const Object_family& family();
};
using Tmxd_symbol_slot = Tmxd_slot<Symbol_kind>;

}  // namespace mxd
