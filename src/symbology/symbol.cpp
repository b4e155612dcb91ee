#include "symbology/symbol.h"

#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd {

// Pictures are not among them: these stand in lists only.
const Object_family& Symbol_kind::family() {
  static const Object_family family(
      {family_row<Tmxd_multilayer_marker_symbol>(), family_row<Tmxd_multilayer_line_symbol>(),
       family_row<Tmxd_multilayer_fill_symbol>(), family_row<Tmxd_simple_marker_symbol>(),
       family_row<Tmxd_char_marker_symbol>(), family_row<Tmxd_arrow_marker_symbol>(),
       family_row<Tmxd_simple_line_symbol>(), family_row<Tmxd_cartographic_line_symbol>(),
       family_row<Tmxd_marker_line_symbol>(), family_row<Tmxd_hash_line_symbol>(),
       family_row<Tmxd_simple_fill_symbol>(), family_row<Tmxd_line_fill_symbol>(),
       family_row<Tmxd_marker_fill_symbol>()});
  return family;
}

}  // namespace mxd
