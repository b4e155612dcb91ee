// The layers of multilayer symbols: lists of marker, line and fill symbols.
#pragma once

#include "core/read_helpers.h"
#include "symbology/symbol.h"

namespace mxd {

template <class Symbol>
class Tmxd_symbol_list final : public Cloned_list<Symbol> {
 public:
  // Reads a count, that many layers, then "enabled" and then "locked" for each. A layer that is
  // missing or unreadable ends the read; earlier ones are kept.
  [[nodiscard]] bool read(Tmxd_mxd_stream& stream, std::int64_t limit) {
    return read_symbols(stream, limit) && read_flags(stream, &Tmxd_symbol::enabled) &&
           read_flags(stream, &Tmxd_symbol::locked);
  }

  [[nodiscard]] bool read_tags(Tmxd_mxd_stream& stream) {
    for (Symbol* symbol : *this) {
      Wide_string tag;
      if (!read_wide_string(stream, tag)) return false;
      symbol->tag = std::move(tag);
      // The layer is already registered, and a copy of it has the tag.
      stream.load().add_copy_cost(*symbol, symbol->tag.size() * sizeof(Wide_char));
    }
    return true;
  }

 private:
  bool read_symbols(Tmxd_mxd_stream& stream, std::int64_t limit) {
    drop_all(*this, stream);
    return read_counted(stream, [&] {
      const Object_family& family = Symbol::family();
      const Scan_result found = stream.scan(family.candidates(), -1, limit);
      return found.hit && read_into(*this, family.template create_as<Symbol>(found.hit->class_id),
                                    stream, found.hit->position, limit);
    });
  }

  bool read_flags(Tmxd_mxd_stream& stream, std::uint8_t Tmxd_symbol::*flag) {
    for (Symbol* symbol : *this) {
      std::int32_t value = 0;
      if (!read_number(stream, value)) return false;
      symbol->*flag = value != 0;
    }
    return true;
  }
};

using Tmxd_marker_symbols = Tmxd_symbol_list<Tmxd_marker_symbol>;
using Tmxd_line_symbols = Tmxd_symbol_list<Tmxd_line_symbol>;
using Tmxd_fill_symbols = Tmxd_symbol_list<Tmxd_fill_symbol>;

}  // namespace mxd
