// All symbol classes. The families of slots and lists follow from this list.
#pragma once

#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd {

using Symbol_classes =
    Class_list<Tmxd_simple_marker_symbol, Tmxd_char_marker_symbol, Tmxd_arrow_marker_symbol,
               Tmxd_picture_marker_symbol, Tmxd_multilayer_marker_symbol, Tmxd_simple_line_symbol,
               Tmxd_cartographic_line_symbol, Tmxd_hash_line_symbol, Tmxd_marker_line_symbol,
               Tmxd_multilayer_line_symbol, Tmxd_simple_fill_symbol, Tmxd_line_fill_symbol,
               Tmxd_marker_fill_symbol, Tmxd_picture_fill_symbol, Tmxd_multilayer_fill_symbol>;

// Calls the visitor with the symbol as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_symbol& symbol, Visitor&& visitor) {
  return visit_as(Symbol_classes(), symbol, std::forward<Visitor>(visitor));
}

}  // namespace mxd
