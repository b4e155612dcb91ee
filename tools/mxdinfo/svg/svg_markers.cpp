// Draws marker symbols.
#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/marker_shapes.h"
#include "mxdinfo/svg/svg.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

Box box_around(double size) {
  return {-size / 2, -size / 2, size, size};
}

// Lines drawn by the color, not filled with it.
std::string strokes(std::string_view d, std::string_view color, double width) {
  return fmt::format(R"(<path d="{}" fill="none" stroke="{}" stroke-width="{}"/>)", d, color,
                     number(width));
}

std::string outline_of(const Tmxd_simple_marker_symbol& symbol) {
  if (!symbol.outline_flag) return {};
  return fmt::format(R"( stroke="{}" stroke-width="{}")", color_or_none(symbol.outline_color),
                     number(std::max(symbol.outline_width, 0.0)));
}

// A cross and an x are lines; their outline is a wider line below.
void draw_strokes(Canvas& canvas, const Tmxd_simple_marker_symbol& symbol, std::string_view d) {
  constexpr double width = 1;
  if (symbol.outline_flag) {
    canvas.add(strokes(d, color_or_none(symbol.outline_color),
                       width + 2 * bounded(std::max(symbol.outline_width, 0.0))));
  }
  canvas.add(strokes(d, color_or_none(symbol.color), width));
}

void draw_simple(Canvas& canvas, const Tmxd_simple_marker_symbol& symbol) {
  const double half = std::abs(bounded(symbol.size)) / 2;
  const std::string h = number(half);
  const std::string whole = number(2 * half);
  const std::string look =
      fmt::format(R"(fill="{}"{})", color_or_none(symbol.color), outline_of(symbol));
  switch (symbol.simple_marker_style) {
    case 0:
      canvas.add(fmt::format(R"(<circle r="{}" {}/>)", h, look));
      break;
    case 1:
      canvas.add(
          fmt::format(R"(<rect x="-{0}" y="-{0}" width="{1}" height="{1}" {2}/>)", h, whole, look));
      break;
    case 2:
      draw_strokes(canvas, symbol, fmt::format("M-{0} 0H{0}M0 -{0}V{0}", h));
      break;
    case 3:
      draw_strokes(canvas, symbol, fmt::format("M-{0} -{0}L{0} {0}M-{0} {0}L{0} -{0}", h));
      break;
    case 4:
      canvas.add(fmt::format(R"(<path d="M0 -{0}L{0} 0L0 {0}L-{0} 0Z" {1}/>)", h, look));
      break;
    default:
      canvas.unknown(box_around(2 * half),
                     fmt::format("marker of unknown style {}", symbol.simple_marker_style));
  }
}

// Only characters that are safe in a style, and no more than a font's name has.
std::string font_family(const std::string& name) {
  constexpr std::size_t max_length = 100;
  std::string safe;
  for (const char c : shortened(name, max_length)) {
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == ' ' || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
    if (plain) safe += c;
  }
  if (!safe.empty()) safe = "'" + safe + "', ";
  return escape_html(safe).append("'Segoe UI Symbol', 'Noto Sans Symbols', sans-serif");
}

// Whether a page may contain the character.
bool is_printable(std::int32_t code) {
  return code > 0x20 && code < 0x110000 && !(code >= 0x7F && code < 0xA0) &&
         !(code >= 0xD800 && code < 0xE000) && (code & 0xFFFE) != 0xFFFE &&
         !(code >= 0x202A && code <= 0x202E) && !(code >= 0xFDD0 && code <= 0xFDEF);
}

// The size includes the outline.
void draw_shape(Canvas& canvas, const Marker_shape& shape, double font_size,
                std::string_view color) {
  constexpr double outline_share = 0.1;
  const double size = font_size * shape.size;
  const double outline = shape.filled ? 0 : size * outline_share;
  const double radius = (size - outline) / 2;
  const std::string look =
      shape.filled
          ? fmt::format(R"(fill="{}")", color)
          : fmt::format(R"(fill="none" stroke="{}" stroke-width="{}")", color, number(outline));
  if (shape.corners.empty()) {
    canvas.add(fmt::format(R"(<circle r="{}" {}/>)", number(radius), look));
    return;
  }
  std::string d;
  for (const auto& [x, y] : shape.corners) {
    d += fmt::format("{}{} {}", d.empty() ? "M" : "L", number(radius * x), number(radius * y));
  }
  canvas.add(fmt::format(R"(<path d="{}Z" {}/>)", d, look));
}

void draw_character(Canvas& canvas, const Tmxd_char_marker_symbol& symbol) {
  const double size = std::abs(bounded(symbol.size));
  if (const Marker_shape* shape = shape_of(symbol)) {
    draw_shape(canvas, *shape, size, color_or_none(symbol.color_slot));
    return;
  }
  const std::string font = utf8(symbol.font_name);
  if (!is_printable(symbol.unicode)) {
    canvas.unknown(box_around(size),
                   fmt::format("character {} of {}", symbol.unicode, shortened(font)));
    return;
  }
  const auto style = fmt::format("{}{}", symbol.font.italic() ? R"( font-style="italic")" : "",
                                 symbol.font.weight >= 600 ? R"( font-weight="bold")" : "");
  canvas.add(fmt::format(R"(<text text-anchor="middle" dominant-baseline="central" )"
                         R"(font-family="{}" font-size="{}" fill="{}"{}>&#{};</text>)",
                         font_family(font), number(size), color_or_none(symbol.color_slot), style,
                         symbol.unicode));
}

void draw_arrow(Canvas& canvas, const Tmxd_arrow_marker_symbol& symbol) {
  const double length = std::abs(bounded(symbol.size));
  const double width = std::abs(bounded(symbol.width));
  canvas.add(fmt::format(R"(<path d="M{0} 0L-{0} {1}V-{1}Z" fill="{2}"/>)", number(length / 2),
                         number(width / 2), color_or_none(symbol.color_slot)));
}

// Where a marker is drawn: first moved, then turned.
struct Placement {
  double x = 0;
  double y = 0;
  double angle = 0;
};

template <class Marker>
Placement own_placement(const Marker& marker) {
  return {marker.x_offset, marker.y_offset, marker.angle};
}

// Other symbols have none.
Placement placement_of(const Tmxd_symbol& symbol) {
  return visit(symbol,
               Overloaded{
                   [](const Tmxd_simple_marker_symbol& marker) { return own_placement(marker); },
                   [](const Tmxd_char_marker_symbol& marker) { return own_placement(marker); },
                   [](const Tmxd_arrow_marker_symbol& marker) { return own_placement(marker); },
                   [](const Tmxd_picture_marker_symbol&) { return Placement(); },
                   [](const Tmxd_multilayer_marker_symbol&) { return Placement(); },
                   [](const Tmxd_line_symbol&) { return Placement(); },
                   [](const Tmxd_fill_symbol&) { return Placement(); },
               });
}

std::string transform_of(const Placement& placement) {
  std::string transform;
  if (placement.x != 0 || placement.y != 0) {
    transform = fmt::format("translate({} {})", number(placement.x), number(-placement.y));
  }
  if (placement.angle != 0) transform += fmt::format("rotate({})", number(-placement.angle));
  return transform;
}

// Draws within an element that moves and turns it, where that is needed.
template <class Draw>
void draw_placed(Canvas& canvas, const Tmxd_symbol& symbol, Draw draw) {
  const std::string placed = transform_of(placement_of(symbol));
  if (placed.empty()) {
    draw();
  } else if (canvas.open(fmt::format(R"(<g transform="{}">)", placed))) {
    draw();
    canvas.close("</g>");
  }
}

void draw_content(Canvas& canvas, const Tmxd_symbol& symbol, int level) {
  constexpr double picture_size = 16;
  const auto not_drawn = [&] { canvas.unknown(box_around(8), "not drawn: no marker"); };
  visit(symbol, Overloaded{
                    [&](const Tmxd_simple_marker_symbol& marker) {
                      draw_placed(canvas, marker, [&] { draw_simple(canvas, marker); });
                    },
                    [&](const Tmxd_char_marker_symbol& marker) {
                      draw_placed(canvas, marker, [&] { draw_character(canvas, marker); });
                    },
                    [&](const Tmxd_arrow_marker_symbol& marker) {
                      draw_placed(canvas, marker, [&] { draw_arrow(canvas, marker); });
                    },
                    [&](const Tmxd_picture_marker_symbol&) {
                      canvas.unknown(box_around(picture_size), "a picture, which is not read");
                    },
                    [&](const Tmxd_multilayer_marker_symbol& marker) {
                      for_each_drawn_layer(marker.marker_symbols, [&](const Tmxd_symbol& layer) {
                        draw_marker(canvas, &layer, {}, level + 1);
                      });
                    },
                    [&](const Tmxd_line_symbol&) { not_drawn(); },
                    [&](const Tmxd_fill_symbol&) { not_drawn(); },
                });
}

}  // namespace

void draw_marker(Canvas& canvas, const Tmxd_symbol* symbol, const Pose& pose, int level) {
  if (!canvas.step()) return;
  const std::string moved = transform_of({pose.at.x, -pose.at.y, pose.angle});
  if (!canvas.open(moved.empty() ? "<g>" : fmt::format(R"(<g transform="{}">)", moved))) return;
  if (!symbol || level > max_symbol_depth) {
    canvas.unknown(box_around(8), symbol ? "not drawn: nested too deeply" : "no marker was read");
  } else {
    draw_content(canvas, *symbol, level);
  }
  canvas.close("</g>");
}

double marker_reach(const Tmxd_symbol* symbol, int level) {
  if (!symbol || level > max_symbol_depth) return 0;
  const auto reach = [&](double size) {
    const Placement placement = placement_of(*symbol);
    return bounded(size) / 2 +
           std::max(std::abs(bounded(placement.x)), std::abs(bounded(placement.y)));
  };
  return visit(
      *symbol,
      Overloaded{
          [&](const Tmxd_simple_marker_symbol& marker) {
            return reach(std::abs(marker.size) + (marker.outline_flag ? marker.outline_width : 0));
          },
          [&](const Tmxd_char_marker_symbol& marker) { return reach(marker.size); },
          [&](const Tmxd_arrow_marker_symbol& marker) {
            return reach(std::max(std::abs(marker.size), std::abs(marker.width)));
          },
          [&](const Tmxd_picture_marker_symbol&) { return 0.0; },
          [&](const Tmxd_multilayer_marker_symbol& marker) {
            double widest = 0;
            for_each_drawn_layer(marker.marker_symbols, [&](const Tmxd_symbol& layer) {
              widest = std::max(widest, marker_reach(&layer, level + 1));
            });
            return widest;
          },
          [](const Tmxd_line_symbol&) { return 0.0; },
          [](const Tmxd_fill_symbol&) { return 0.0; },
      });
}

}  // namespace mxdinfo
