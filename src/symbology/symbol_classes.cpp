#include "symbology/symbol_classes.h"

namespace mxd {
namespace {

// The symbols that the list of a multilayer symbol may hold: those with its base class.
template <class Base>
Object_family list_family() {
  Object_family family;
  for_each_class(Symbol_classes(), [&]<class Symbol>(std::type_identity<Symbol>) {
    if constexpr (std::is_base_of_v<Base, Symbol>) family.add<Symbol>(Symbol::in_lists);
  });
  return family;
}

}  // namespace

const Object_family& Tmxd_symbol::family() {
  static const Object_family family = [] {
    Object_family result;
    for_each_class(Symbol_classes(), [&]<class Symbol>(std::type_identity<Symbol>) {
      result.add<Symbol>(Symbol::in_slots);
    });
    return result;
  }();
  return family;
}

const Object_family& Tmxd_marker_symbol::family() {
  static const Object_family family = list_family<Tmxd_marker_symbol>();
  return family;
}

const Object_family& Tmxd_line_symbol::family() {
  static const Object_family family = list_family<Tmxd_line_symbol>();
  return family;
}

const Object_family& Tmxd_fill_symbol::family() {
  static const Object_family family = list_family<Tmxd_fill_symbol>();
  return family;
}

}  // namespace mxd
