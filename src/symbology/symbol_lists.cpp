#include "symbology/symbol_lists.h"

#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd {

const Object_family& Marker_layer_kind::family() {
  static const Object_family family(
      {family_row<Tmxd_simple_marker_symbol>(), family_row<Tmxd_char_marker_symbol>(),
       family_row<Tmxd_arrow_marker_symbol>(), family_row<Tmxd_picture_marker_symbol>(),
       only_made_row<Tmxd_multilayer_marker_symbol>()});
  return family;
}

const Object_family& Line_layer_kind::family() {
  static const Object_family family(
      {family_row<Tmxd_simple_line_symbol>(), family_row<Tmxd_cartographic_line_symbol>(),
       family_row<Tmxd_marker_line_symbol>(), family_row<Tmxd_hash_line_symbol>()});
  return family;
}

const Object_family& Fill_layer_kind::family() {
  static const Object_family family(
      {family_row<Tmxd_simple_fill_symbol>(), family_row<Tmxd_line_fill_symbol>(),
       family_row<Tmxd_marker_fill_symbol>(), family_row<Tmxd_picture_fill_symbol>()});
  return family;
}

}  // namespace mxd
