#include <fmt/format.h>

#include <iterator>

#include "mxdinfo/facts/facts.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// Symbols nest; a color further down is not the symbol's.
constexpr int max_depth = 8;

std::optional<std::string> color_within(const Tmxd_symbol* symbol, int depth);

// Of the topmost layer that is drawn and has a color.
template <class List>
std::optional<std::string> color_of_layers(const List& layers, int depth) {
  for (const auto& layer : layers) {
    if (!layer->enabled) continue;
    if (auto color = color_within(layer, depth + 1)) return color;
  }
  return std::nullopt;
}

std::optional<std::string> marker_color(const Tmxd_symbol* symbol, int depth) {
  if (const auto* simple = dynamic_cast<const Tmxd_simple_marker_symbol*>(symbol)) {
    return drawn_color(simple->color);
  }
  if (const auto* character = dynamic_cast<const Tmxd_char_marker_symbol*>(symbol)) {
    return drawn_color(character->color_slot);
  }
  if (const auto* arrow = dynamic_cast<const Tmxd_arrow_marker_symbol*>(symbol)) {
    return drawn_color(arrow->color_slot);
  }
  if (const auto* layers = dynamic_cast<const Tmxd_multilayer_marker_symbol*>(symbol)) {
    return color_of_layers(layers->marker_symbols, depth);
  }
  return std::nullopt;
}

std::optional<std::string> line_color(const Tmxd_symbol* symbol, int depth) {
  if (const auto* simple = dynamic_cast<const Tmxd_simple_line_symbol*>(symbol)) {
    return drawn_color(simple->color_slot);
  }
  if (const auto* line = dynamic_cast<const Tmxd_cartographic_line_symbol*>(symbol)) {
    return drawn_color(line->color_slot);
  }
  if (const auto* hash = dynamic_cast<const Tmxd_hash_line_symbol*>(symbol)) {
    return drawn_color(hash->color_slot);
  }
  if (const auto* markers = dynamic_cast<const Tmxd_marker_line_symbol*>(symbol)) {
    return color_within(markers->pattern_marker.get(), depth + 1);
  }
  if (const auto* layers = dynamic_cast<const Tmxd_multilayer_line_symbol*>(symbol)) {
    return color_of_layers(layers->line_symbols, depth);
  }
  return std::nullopt;
}

std::optional<std::string> fill_color(const Tmxd_symbol* symbol, int depth) {
  if (const auto* simple = dynamic_cast<const Tmxd_simple_fill_symbol*>(symbol)) {
    auto color = drawn_color(simple->color_slot);
    return color ? color : color_within(simple->outline.get(), depth + 1);
  }
  if (const auto* lines = dynamic_cast<const Tmxd_line_fill_symbol*>(symbol)) {
    return color_within(lines->pattern.get(), depth + 1);
  }
  if (const auto* markers = dynamic_cast<const Tmxd_marker_fill_symbol*>(symbol)) {
    return color_within(markers->marker_slot.get(), depth + 1);
  }
  if (const auto* layers = dynamic_cast<const Tmxd_multilayer_fill_symbol*>(symbol)) {
    return color_of_layers(layers->fill_symbols, depth);
  }
  return std::nullopt;
}

std::optional<std::string> color_within(const Tmxd_symbol* symbol, int depth) {
  if (!symbol || depth > max_depth) return std::nullopt;
  if (dynamic_cast<const Tmxd_marker_symbol*>(symbol)) return marker_color(symbol, depth);
  if (dynamic_cast<const Tmxd_line_symbol*>(symbol)) return line_color(symbol, depth);
  return fill_color(symbol, depth);
}

}  // namespace

std::string color_hex(const Tmxd_color& color) {
  std::uint8_t red = 0, green = 0, blue = 0;
  color.get_rgb(red, green, blue);
  return fmt::format("#{:02x}{:02x}{:02x}", red, green, blue);
}

std::optional<std::string> drawn_color(const Tmxd_color_slot& slot) {
  const auto* color = slot.get();
  if (!color || color->get_no_use_flag()) return std::nullopt;
  return color_hex(*color);
}

std::optional<std::string> main_color(const Tmxd_symbol* symbol) {
  return color_within(symbol, 0);
}

}  // namespace mxdinfo
