#include "mxdinfo/facts/symbol_text.h"

#include <fmt/format.h>

#include <array>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxdinfo {
namespace {

using namespace mxd;

template <std::size_t n>
std::string name_at(const std::array<const char*, n>& names, std::int32_t index) {
  const bool known = index >= 0 && static_cast<std::size_t>(index) < n;
  return known ? names[static_cast<std::size_t>(index)] : fmt::format("style {}", index);
}

class Description {
 public:
  explicit Description(const Tmxd_symbol& symbol) : text_(symbol_kind(&symbol)) {
    constexpr std::string_view ending = " symbol";
    if (text_.ends_with(ending)) text_.resize(text_.size() - ending.size());
  }

  Description& word(std::string_view word) {
    if (!word.empty()) text_.append(", ").append(word);
    return *this;
  }
  Description& color(const Tmxd_color_slot& slot) {
    return word(drawn_color(slot).value_or("no color"));
  }
  Description& points(std::string_view what, double value) {
    return word(fmt::format("{} {:.6g} pt", what, value));
  }
  // A zero is not worth telling.
  Description& unless_zero(std::string_view what, double value, std::string_view unit) {
    return value == 0 ? *this : word(fmt::format("{} {:.6g}{}", what, value, unit));
  }
  std::string text() const { return text_; }

 private:
  std::string text_;
};

std::string marker_text(const Tmxd_symbol& symbol) {
  Description description(symbol);
  if (const auto* simple = dynamic_cast<const Tmxd_simple_marker_symbol*>(&symbol)) {
    description.word(marker_style_name(simple->simple_marker_style)).color(simple->color);
    description.points("size", simple->size).unless_zero("angle", simple->angle, "°");
    if (simple->outline_flag) {
      description.word("outline " + drawn_color(simple->outline_color).value_or("of no color"));
    }
  } else if (const auto* glyph = dynamic_cast<const Tmxd_char_marker_symbol*>(&symbol)) {
    description.word(fmt::format("{} {}", utf8(glyph->font_name), glyph->unicode));
    description.color(glyph->color_slot).points("size", glyph->size);
    description.unless_zero("angle", glyph->angle, "°");
  } else if (const auto* arrow = dynamic_cast<const Tmxd_arrow_marker_symbol*>(&symbol)) {
    description.color(arrow->color_slot)
        .points("length", arrow->size)
        .points("width", arrow->width);
  }
  return description.text();
}

std::string line_text(const Tmxd_symbol& symbol) {
  Description description(symbol);
  if (const auto* simple = dynamic_cast<const Tmxd_simple_line_symbol*>(&symbol)) {
    description.word(line_style_name(simple->line_type)).color(simple->color_slot);
    description.points("width", simple->width);
  } else if (const auto* line = dynamic_cast<const Tmxd_cartographic_line_symbol*>(&symbol)) {
    description.color(line->color_slot).points("width", line->width);
    description.unless_zero("offset", line->offset, " pt");
    if (line->line_template.exists && !line->line_template.items.empty())
      description.word("dashed");
    if (!line->line_decoration.elements.empty()) description.word("decorated");
  } else if (const auto* hash = dynamic_cast<const Tmxd_hash_line_symbol*>(&symbol)) {
    description.color(hash->color_slot).points("width", hash->width);
    description.unless_zero("angle", hash->angle, "°").unless_zero("offset", hash->offset, " pt");
  } else if (const auto* markers = dynamic_cast<const Tmxd_marker_line_symbol*>(&symbol)) {
    description.word("of " + symbol_kind(markers->pattern_marker.get()));
    description.unless_zero("offset", markers->offset, " pt");
  }
  return description.text();
}

std::string fill_text(const Tmxd_symbol& symbol) {
  Description description(symbol);
  if (const auto* simple = dynamic_cast<const Tmxd_simple_fill_symbol*>(&symbol)) {
    description.color(simple->color_slot);
    if (const auto color = main_color(simple->outline.get())) description.word("outline " + *color);
  } else if (const auto* lines = dynamic_cast<const Tmxd_line_fill_symbol*>(&symbol)) {
    description.word("of " + symbol_kind(lines->pattern.get()));
    description.unless_zero("angle", lines->angle, "°").points("separation", lines->separation);
  } else if (const auto* markers = dynamic_cast<const Tmxd_marker_fill_symbol*>(&symbol)) {
    description.word("of " + symbol_kind(markers->marker_slot.get()));
  }
  return description.text();
}

template <class List>
std::vector<const Tmxd_symbol*> pointers(const List& list) {
  std::vector<const Tmxd_symbol*> layers;
  for (const auto& layer : list) layers.push_back(layer);
  return layers;
}

}  // namespace

std::string marker_style_name(std::int32_t style) {
  return name_at(std::array{"circle", "square", "cross", "x", "diamond"}, style);
}

std::string line_style_name(std::int32_t style) {
  return name_at(
      std::array{"solid", "dashed", "dotted", "dash-dot", "dash-dot-dot", "none", "inside frame"},
      style);
}

std::string symbol_text(const Tmxd_symbol* symbol) {
  if (!symbol) return "no symbol";
  if (dynamic_cast<const Tmxd_marker_symbol*>(symbol)) return marker_text(*symbol);
  if (dynamic_cast<const Tmxd_line_symbol*>(symbol)) return line_text(*symbol);
  return fill_text(*symbol);
}

std::vector<const Tmxd_symbol*> symbol_layers(const Tmxd_symbol* symbol) {
  if (const auto* markers = dynamic_cast<const Tmxd_multilayer_marker_symbol*>(symbol)) {
    return pointers(markers->marker_symbols);
  }
  if (const auto* lines = dynamic_cast<const Tmxd_multilayer_line_symbol*>(symbol)) {
    return pointers(lines->line_symbols);
  }
  if (const auto* fills = dynamic_cast<const Tmxd_multilayer_fill_symbol*>(symbol)) {
    return pointers(fills->fill_symbols);
  }
  return {symbol};
}

}  // namespace mxdinfo
