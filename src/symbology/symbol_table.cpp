// Every symbol, once: what slots and the lists of multilayer symbols look for follows from this
// table.
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd {
namespace {

enum class Search { finds, factory_only, ignores };

struct Symbol_row {
  Object_family::Row row;
  Search in_slots;
  Search in_lists;
  // The list of its base class is the one that it may stand in.
  bool is_marker, is_line, is_fill;
};

template <class Symbol>
Symbol_row symbol_row(Search in_slots = Search::finds, Search in_lists = Search::finds) {
  return {family_row<Symbol>(),
          in_slots,
          in_lists,
          std::is_base_of_v<Tmxd_marker_symbol, Symbol>,
          std::is_base_of_v<Tmxd_line_symbol, Symbol>,
          std::is_base_of_v<Tmxd_fill_symbol, Symbol>};
}

const std::vector<Symbol_row>& symbol_table() {
  using enum Search;
  static const std::vector<Symbol_row> table = {
      symbol_row<Tmxd_multilayer_marker_symbol>(finds, factory_only),
      symbol_row<Tmxd_multilayer_line_symbol>(finds, ignores),
      symbol_row<Tmxd_multilayer_fill_symbol>(finds, ignores),
      symbol_row<Tmxd_simple_marker_symbol>(),
      symbol_row<Tmxd_char_marker_symbol>(),
      symbol_row<Tmxd_arrow_marker_symbol>(),
      symbol_row<Tmxd_picture_marker_symbol>(ignores, finds),
      symbol_row<Tmxd_simple_line_symbol>(),
      symbol_row<Tmxd_cartographic_line_symbol>(),
      symbol_row<Tmxd_marker_line_symbol>(),
      symbol_row<Tmxd_hash_line_symbol>(),
      symbol_row<Tmxd_simple_fill_symbol>(),
      symbol_row<Tmxd_line_fill_symbol>(),
      symbol_row<Tmxd_marker_fill_symbol>(),
      symbol_row<Tmxd_picture_fill_symbol>(ignores, finds),
  };
  return table;
}

void add(std::vector<Object_family::Row>& rows, Object_family::Row row, Search search) {
  row.factory_only = search == Search::factory_only;
  if (search != Search::ignores) rows.push_back(row);
}

Object_family slot_family() {
  std::vector<Object_family::Row> rows;
  for (const Symbol_row& symbol : symbol_table()) add(rows, symbol.row, symbol.in_slots);
  return Object_family(std::move(rows));
}

Object_family list_family(bool Symbol_row::*of_its_base) {
  std::vector<Object_family::Row> rows;
  for (const Symbol_row& symbol : symbol_table()) {
    if (symbol.*of_its_base) add(rows, symbol.row, symbol.in_lists);
  }
  return Object_family(std::move(rows));
}

}  // namespace

const Object_family& Symbol_kind::family() {
  static const Object_family family = slot_family();
  return family;
}

const Object_family& Marker_layer_kind::family() {
  static const Object_family family = list_family(&Symbol_row::is_marker);
  return family;
}

const Object_family& Line_layer_kind::family() {
  static const Object_family family = list_family(&Symbol_row::is_line);
  return family;
}

const Object_family& Fill_layer_kind::family() {
  static const Object_family family = list_family(&Symbol_row::is_fill);
  return family;
}

}  // namespace mxd
