// What all drawing symbols share, and the slot in which an owner holds one.
#pragma once

#include "core/object_slot.h"

namespace mxd {

// Enabled, locked and tag describe a symbol as a layer of a multilayer symbol, which sets them.
// They are in neither output.
class Tmxd_symbol : public Tmxd_obj {
 public:
  // The symbols that slots search for.
  static const Object_family& family();
  static constexpr std::string_view empty_key = "symbol";
  // How slots and the lists of multilayer symbols search for the class; a class may hide these.
  static constexpr Search in_slots = Search::finds;
  static constexpr Search in_lists = Search::finds;

  std::uint8_t enabled = 1;
  std::uint8_t locked = 0;
  Wide_string tag;
};

// Each family() has the symbols that the multilayer symbol of that kind searches for.
class Tmxd_marker_symbol : public Tmxd_symbol {
 public:
  static const Object_family& family();
};
class Tmxd_line_symbol : public Tmxd_symbol {
 public:
  static const Object_family& family();
};
class Tmxd_fill_symbol : public Tmxd_symbol {
 public:
  static const Object_family& family();
};

using Tmxd_symbol_slot = Tmxd_slot<Tmxd_symbol>;

}  // namespace mxd
