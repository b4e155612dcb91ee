#include <fmt/format.h>

#include "mxdinfo/facts/facts.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

std::optional<std::string> color_within(const Tmxd_symbol* symbol, int depth);

// The color of the topmost layer that is drawn and has one.
template <class List>
std::optional<std::string> color_of_layers(const List& layers, int depth) {
  for (const Tmxd_symbol* layer : layers) {
    if (!layer->enabled) continue;
    if (auto color = color_within(layer, depth + 1)) return color;
  }
  return std::nullopt;
}

std::optional<std::string> color_within(const Tmxd_symbol* symbol, int depth) {
  if (!symbol || depth > max_symbol_depth) return std::nullopt;
  const auto nested = [depth](const Tmxd_symbol_slot& slot) {
    return color_within(slot.get(), depth + 1);
  };
  return visit(
      *symbol,
      Overloaded{
          [](const Tmxd_simple_marker_symbol& marker) { return drawn_color(marker.color); },
          [](const Tmxd_char_marker_symbol& marker) { return drawn_color(marker.color_slot); },
          [](const Tmxd_arrow_marker_symbol& marker) { return drawn_color(marker.color_slot); },
          [](const Tmxd_picture_marker_symbol&) { return std::optional<std::string>(); },
          [=](const Tmxd_multilayer_marker_symbol& marker) {
            return color_of_layers(marker.marker_symbols, depth);
          },
          [](const Tmxd_simple_line_symbol& line) { return drawn_color(line.color_slot); },
          [](const Tmxd_cartographic_line_symbol& line) { return drawn_color(line.color_slot); },
          [](const Tmxd_hash_line_symbol& line) { return drawn_color(line.color_slot); },
          [=](const Tmxd_marker_line_symbol& line) { return nested(line.pattern_marker); },
          [=](const Tmxd_multilayer_line_symbol& line) {
            return color_of_layers(line.line_symbols, depth);
          },
          [=](const Tmxd_simple_fill_symbol& fill) {
            auto color = drawn_color(fill.color_slot);
            return color ? color : nested(fill.outline);
          },
          [=](const Tmxd_line_fill_symbol& fill) { return nested(fill.pattern); },
          [=](const Tmxd_marker_fill_symbol& fill) { return nested(fill.marker_slot); },
          [](const Tmxd_picture_fill_symbol&) { return std::optional<std::string>(); },
          [=](const Tmxd_multilayer_fill_symbol& fill) {
            return color_of_layers(fill.fill_symbols, depth);
          },
      });
}

}  // namespace

std::string color_hex(const Label_class::Rgb& color) {
  return fmt::format("#{:02x}{:02x}{:02x}", color.red, color.green, color.blue);
}

std::string color_hex(const Tmxd_color& color) {
  Label_class::Rgb rgb;
  color.get_rgb(rgb.red, rgb.green, rgb.blue);
  return color_hex(rgb);
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
