#include "mxdinfo/svg/svg.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/symbol_text.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

constexpr double swatch_width = 48;
constexpr double swatch_height = 24;
constexpr double margin = 2;

std::string title_of(const mxd::Tmxd_symbol* symbol) {
  constexpr std::size_t max_length = 2000;
  std::string title;
  for (const auto* layer : symbol_layers(symbol)) {
    if (title.size() > max_length) return title + "; …";
    if (!title.empty()) title += "; ";
    title += symbol_text(layer);
    if (layer && !layer->enabled) title += " (off)";
  }
  return title.empty() ? symbol_text(symbol) : title;
}

// By how much a symbol is reduced so that it fits.
double reduction(double reach) {
  constexpr double room = swatch_height / 2 - margin;
  return std::max(1.0, bounded(reach) / room);
}

void draw(Canvas& canvas, const mxd::Tmxd_symbol* symbol, double scale) {
  const double width = swatch_width * scale;
  const double height = swatch_height * scale;
  const double edge = margin * scale;
  const Box inside{-width / 2 + edge, -height / 2 + edge, width - 2 * edge, height - 2 * edge};
  if (!symbol) {
    canvas.unknown(inside, "no symbol was read");
    return;
  }
  visit(*symbol, mxd::Overloaded{
                     [&](const mxd::Tmxd_marker_symbol&) { draw_marker(canvas, symbol, {}, 0); },
                     [&](const mxd::Tmxd_line_symbol&) {
                       const Path path{{{inside.x, 0}, {inside.x + inside.width, 0}}, false};
                       draw_line(canvas, symbol, path, 0);
                     },
                     [&](const mxd::Tmxd_fill_symbol&) { draw_fill(canvas, symbol, inside, 0); }});
}

}  // namespace

double bounded(double value) {
  constexpr double max_value = 5000;
  return std::isfinite(value) ? std::clamp(value, -max_value, max_value) : 0;
}

std::string number(double value) {
  std::string text = fmt::format("{:.2f}", bounded(value));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string color_or_none(const mxd::Tmxd_color_slot& slot) {
  return drawn_color(slot).value_or("none");
}

Path path_around(const Box& box) {
  const double right = box.x + box.width;
  const double bottom = box.y + box.height;
  return {{{box.x, box.y}, {right, box.y}, {right, bottom}, {box.x, bottom}, {box.x, box.y}}, true};
}

double length_of(const Path& path) {
  double length = 0;
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    length += std::hypot(path.points[i].x - path.points[i - 1].x,
                         path.points[i].y - path.points[i - 1].y);
  }
  return length;
}

Pose pose_at(const Path& path, double distance) {
  Pose pose;
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    const Point from = path.points[i - 1];
    const double x = path.points[i].x - from.x;
    const double y = path.points[i].y - from.y;
    const double length = std::hypot(x, y);
    if (length == 0) continue;
    const double part = std::min(distance / length, 1.0);
    pose = {{from.x + x * part, from.y + y * part}, std::atan2(-y, x) * 180 / std::numbers::pi};
    if (distance <= length) break;
    distance -= length;
  }
  return pose;
}

void Canvas::unknown(const Box& box, std::string_view title) {
  if (!open(R"(<g class="unknown">)")) return;
  out_ += fmt::format("<title>{}</title>", escape_html(title));
  out_ += fmt::format(R"(<rect x="{}" y="{}" width="{}" height="{}"/>)", number(box.x),
                      number(box.y), number(box.width), number(box.height));
  // Diagonals: x and y, counted from the lower left corner, have the same sum along each.
  constexpr int lines = 9;
  std::string strokes;
  for (int i = 1; i < lines; ++i) {
    const double sum = (box.width + box.height) * i / lines;
    const Point from{std::max(0.0, sum - box.height), std::min(sum, box.height)};
    const Point to{std::min(sum, box.width), std::max(0.0, sum - box.width)};
    const double bottom = box.y + box.height;
    strokes += fmt::format("M{} {}L{} {}", number(box.x + from.x), number(bottom - from.y),
                           number(box.x + to.x), number(bottom - to.y));
  }
  out_ += fmt::format(R"(<path d="{}"/>)", strokes);
  close("</g>");
}

std::string swatch_svg(const mxd::Tmxd_symbol* symbol, std::string_view attributes) {
  // Fills have no size of their own.
  const double scale = reduction(std::max(marker_reach(symbol, 0), line_reach(symbol, 0)));
  Canvas canvas;
  draw(canvas, symbol, scale);
  const double width = swatch_width * scale;
  const double height = swatch_height * scale;
  return fmt::format(R"(<svg {} viewBox="{} {} {} {}"><title>{}</title>{}</svg>)", attributes,
                     number(-width / 2), number(-height / 2), number(width), number(height),
                     escape_html(title_of(symbol)), canvas.take());
}

}  // namespace mxdinfo
