#include "mxdinfo/facts/symbol_text.h"

#include <fmt/format.h>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

std::string style_text(std::optional<std::string_view> name, std::int32_t style) {
  return name ? std::string(*name) : fmt::format("style {}", style);
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
  // Omits zero values.
  Description& unless_zero(std::string_view what, double value, std::string_view unit) {
    return value == 0 ? *this : word(fmt::format("{} {:.6g}{}", what, value, unit));
  }
  std::string text() const { return text_; }

 private:
  std::string text_;
};

Description text_of(const Tmxd_simple_marker_symbol& marker) {
  Description text(marker);
  text.word(style_text(marker_style_name(marker.simple_marker_style), marker.simple_marker_style))
      .color(marker.color);
  text.points("size", marker.size).unless_zero("angle", marker.angle, "°");
  if (marker.outline_flag) {
    text.word("outline " + drawn_color(marker.outline_color).value_or("of no color"));
  }
  return text;
}

Description text_of(const Tmxd_char_marker_symbol& marker) {
  Description text(marker);
  text.word(fmt::format("{} {}", shortened(utf8(marker.font_name)), marker.unicode));
  text.color(marker.color_slot).points("size", marker.size);
  return text.unless_zero("angle", marker.angle, "°");
}

Description text_of(const Tmxd_arrow_marker_symbol& marker) {
  Description text(marker);
  return text.color(marker.color_slot).points("length", marker.size).points("width", marker.width);
}

Description text_of(const Tmxd_simple_line_symbol& line) {
  Description text(line);
  return text.word(style_text(line_style_name(line.line_type), line.line_type))
      .color(line.color_slot)
      .points("width", line.width);
}

Description text_of(const Tmxd_cartographic_line_symbol& line) {
  Description text(line);
  text.color(line.color_slot).points("width", line.width);
  text.unless_zero("offset", line.offset, " pt");
  if (line.line_template.exists && !line.line_template.items.empty()) text.word("dashed");
  if (!line.line_decoration.elements.empty()) text.word("decorated");
  return text;
}

Description text_of(const Tmxd_hash_line_symbol& line) {
  Description text(line);
  text.color(line.color_slot).points("width", line.width);
  return text.unless_zero("angle", line.angle, "°").unless_zero("offset", line.offset, " pt");
}

Description text_of(const Tmxd_marker_line_symbol& line) {
  Description text(line);
  text.word("of " + symbol_kind(line.pattern_marker.get()));
  return text.unless_zero("offset", line.offset, " pt");
}

Description text_of(const Tmxd_simple_fill_symbol& fill) {
  Description text(fill);
  text.color(fill.color_slot);
  if (const auto color = main_color(fill.outline.get())) text.word("outline " + *color);
  return text;
}

Description text_of(const Tmxd_line_fill_symbol& fill) {
  Description text(fill);
  text.word("of " + symbol_kind(fill.pattern.get()));
  return text.unless_zero("angle", fill.angle, "°").points("separation", fill.separation);
}

Description text_of(const Tmxd_marker_fill_symbol& fill) {
  Description text(fill);
  return text.word("of " + symbol_kind(fill.marker_slot.get()));
}

Description text_of(const Tmxd_picture_marker_symbol& marker) {
  return Description(marker);
}
Description text_of(const Tmxd_picture_fill_symbol& fill) {
  return Description(fill);
}
Description text_of(const Tmxd_multilayer_marker_symbol& marker) {
  return Description(marker);
}
Description text_of(const Tmxd_multilayer_line_symbol& line) {
  return Description(line);
}
Description text_of(const Tmxd_multilayer_fill_symbol& fill) {
  return Description(fill);
}

template <class List>
std::vector<const Tmxd_symbol*> pointers(const List& list) {
  std::vector<const Tmxd_symbol*> layers;
  for (const Tmxd_symbol* layer : list) layers.push_back(layer);
  return layers;
}

}  // namespace

std::optional<std::string_view> marker_style_name(std::int32_t style) {
  return name_at(std::array{"circle", "square", "cross", "x", "diamond"}, style);
}

std::optional<std::string_view> line_style_name(std::int32_t style) {
  return name_at(
      std::array{"solid", "dashed", "dotted", "dash-dot", "dash-dot-dot", "none", "inside-frame"},
      style);
}

std::string symbol_text(const Tmxd_symbol* symbol) {
  if (!symbol) return "no symbol";
  return visit(*symbol, [](const auto& known) { return text_of(known).text(); });
}

std::vector<const Tmxd_symbol*> symbol_layers(const Tmxd_symbol* symbol) {
  using Layers = std::vector<const Tmxd_symbol*>;
  if (!symbol) return {nullptr};
  return visit(
      *symbol,
      Overloaded{
          [](const Tmxd_multilayer_marker_symbol& marker) {
            return pointers(marker.marker_symbols);
          },
          [](const Tmxd_multilayer_line_symbol& line) { return pointers(line.line_symbols); },
          [](const Tmxd_multilayer_fill_symbol& fill) { return pointers(fill.fill_symbols); },
          [](const Tmxd_marker_symbol& single) { return Layers{&single}; },
          [](const Tmxd_line_symbol& single) { return Layers{&single}; },
          [](const Tmxd_fill_symbol& single) { return Layers{&single}; },
      });
}

}  // namespace mxdinfo
