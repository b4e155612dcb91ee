// The layers of multilayer symbols: lists of marker, line and fill symbols.
#pragma once

#include "core/counted_read.h"
#include "core/list_read.h"
#include "symbology/symbol.h"

namespace mxd {

template <class Kind>
class Tmxd_symbol_list final : public Cloned_list<Kind> {
 public:
  // The layers behind their count, then what each of them has in "enabled", then in "locked". A
  // layer that is not found or cannot be read ends the read; those before it stay.
  bool read(Tmxd_mxd_stream& stream, std::int64_t limit) {
    return read_symbols(stream, limit) && read_flags(stream, &Tmxd_symbol::enabled) &&
           read_flags(stream, &Tmxd_symbol::locked);
  }

  bool read_tags(Tmxd_mxd_stream& stream) {
    for (const auto& symbol : *this) {
      Wide_string tag;
      if (!read_wide_string(stream, tag)) return false;
      symbol->tag = std::move(tag);
      // The layer is registered by now, and a copy of it has the tag, too.
      stream.add_copy_cost(*symbol, symbol->tag.size() * sizeof(Wide_char));
    }
    return true;
  }

 private:
  using Held = typename Kind::Held;

  bool read_symbols(Tmxd_mxd_stream& stream, std::int64_t limit) {
    drop_all(*this, stream);
    return read_counted(stream, [&] {
      const Scan_result found = stream.scan(Kind::family().candidates(), -1, limit);
      return found.hit &&
             read_into(*this, Kind::family().template create_as<Held>(found.hit->class_id), stream,
                       found.hit->position, limit);
    });
  }

  bool read_flags(Tmxd_mxd_stream& stream, std::uint8_t Tmxd_symbol::*flag) {
    for (const auto& symbol : *this) {
      std::int32_t value = 0;
      if (!read_number(stream, value)) return false;
      (*symbol).*flag = value != 0;
    }
    return true;
  }
};

struct Marker_layer_kind {
  using Held = Tmxd_marker_symbol;
  static const Object_family& family();
};
using Tmxd_marker_symbols = Tmxd_symbol_list<Marker_layer_kind>;

struct Line_layer_kind {
  using Held = Tmxd_line_symbol;
  static const Object_family& family();
};
using Tmxd_line_symbols = Tmxd_symbol_list<Line_layer_kind>;

struct Fill_layer_kind {
  using Held = Tmxd_fill_symbol;
  static const Object_family& family();
};
using Tmxd_fill_symbols = Tmxd_symbol_list<Fill_layer_kind>;

}  // namespace mxd
