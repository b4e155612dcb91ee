// Draws fill symbols.
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "mxdinfo/facts/facts.h"
#include "mxdinfo/svg/svg.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

void fill_box(Canvas& canvas, const Box& box, const std::string& color) {
  canvas.add(fmt::format(R"(<rect x="{}" y="{}" width="{}" height="{}" fill="{}"/>)", number(box.x),
                         number(box.y), number(box.width), number(box.height), color));
}

// Opens an element that clips its content to the box, without a change of coordinates.
bool open_clip(Canvas& canvas, const Box& box) {
  const std::string x = number(box.x), y = number(box.y);
  const std::string width = number(box.width), height = number(box.height);
  return canvas.open(fmt::format(R"(<svg x="{0}" y="{1}" width="{2}" height="{3}" )"
                                 R"(viewBox="{0} {1} {2} {3}">)",
                                 x, y, width, height));
}

void draw_outline(Canvas& canvas, const Tmxd_symbol_slot& outline, const Box& box, int level) {
  if (outline.get()) draw_line(canvas, outline.get(), path_around(box), level + 1);
}

// Parallel lines across the box, from its middle to both sides.
void draw_hatching(Canvas& canvas, const Tmxd_line_fill_symbol& symbol, const Box& box, int level) {
  constexpr double min_distance = 1;
  constexpr int max_lines = 100;
  const double reach = std::hypot(box.width, box.height) / 2;
  const double step = std::max(std::abs(bounded(symbol.separation)), min_distance);
  const double angle = bounded(symbol.angle) * std::numbers::pi / 180;
  const Point along{std::cos(angle), -std::sin(angle)};
  const Point middle{box.x + box.width / 2, box.y + box.height / 2};
  const double first = std::fmod(bounded(symbol.offset), step);
  const int half = std::min(static_cast<int>(reach / step) + 1, max_lines / 2);
  for (int i = -half; i <= half; ++i) {
    const double aside = first + i * step;
    const Point at{middle.x - aside * along.y, middle.y + aside * along.x};
    const Path path{{{at.x - reach * along.x, at.y - reach * along.y},
                     {at.x + reach * along.x, at.y + reach * along.y}},
                    false};
    draw_line(canvas, symbol.pattern.get(), path, level + 1);
  }
}

// Pseudo-random, but the same on every page.
class Jitter {
 public:
  double next() {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<double>(state_ >> 8) / (1 << 24) - 0.5;
  }

 private:
  std::uint32_t state_ = 1;
};

void draw_markers(Canvas& canvas, const Tmxd_marker_fill_symbol& symbol, const Box& box,
                  int level) {
  constexpr double min_distance = 3;
  const double step_x = std::max(std::abs(bounded(symbol.separation_x)), min_distance);
  const double step_y = std::max(std::abs(bounded(symbol.separation_y)), min_distance);
  const double first_x = std::fmod(bounded(symbol.offset_x), step_x) + box.width / 2;
  const double first_y = std::fmod(-bounded(symbol.offset_y), step_y) + box.height / 2;
  const auto columns = static_cast<int>(std::ceil(box.width / step_x)) + 2;
  const auto rows = static_cast<int>(std::ceil(box.height / step_y)) + 2;
  const double left = box.x + first_x - std::ceil(first_x / step_x) * step_x;
  const double top = box.y + first_y - std::ceil(first_y / step_y) * step_y;
  Jitter jitter;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      Point at{left + column * step_x, top + row * step_y};
      if (symbol.random) at = {at.x + jitter.next() * step_x, at.y + jitter.next() * step_y};
      draw_marker(canvas, symbol.marker_slot.get(), {at, 0}, level + 1);
    }
  }
}

void draw_picture(Canvas& canvas, const Box& box) {
  canvas.unknown(box, "a picture, which is not read");
}

}  // namespace

void draw_fill(Canvas& canvas, const Tmxd_symbol* symbol, const Box& box, int level) {
  if (!canvas.step()) return;
  if (!symbol || level > max_symbol_depth) {
    canvas.unknown(box, symbol ? "not drawn: nested too deeply" : "no fill was read");
    return;
  }
  visit(*symbol, Overloaded{
                     [&](const Tmxd_simple_fill_symbol& fill) {
                       fill_box(canvas, box, color_or_none(fill.color_slot));
                       draw_outline(canvas, fill.outline, box, level);
                     },
                     [&](const Tmxd_line_fill_symbol& fill) {
                       if (open_clip(canvas, box)) {
                         draw_hatching(canvas, fill, box, level);
                         canvas.close("</svg>");
                       }
                       draw_outline(canvas, fill.outline, box, level);
                     },
                     [&](const Tmxd_marker_fill_symbol& fill) {
                       if (open_clip(canvas, box)) {
                         draw_markers(canvas, fill, box, level);
                         canvas.close("</svg>");
                       }
                       draw_outline(canvas, fill.outline_slot, box, level);
                     },
                     [&](const Tmxd_picture_fill_symbol& fill) {
                       draw_picture(canvas, box);
                       draw_outline(canvas, fill.outline, box, level);
                     },
                     [&](const Tmxd_multilayer_fill_symbol& fill) {
                       for_each_drawn_layer(fill.fill_symbols, [&](const Tmxd_symbol& layer) {
                         draw_fill(canvas, &layer, box, level + 1);
                       });
                     },
                     [&](const Tmxd_marker_symbol&) { canvas.unknown(box, "not drawn: no fill"); },
                     [&](const Tmxd_line_symbol&) { canvas.unknown(box, "not drawn: no fill"); },
                 });
}

}  // namespace mxdinfo
