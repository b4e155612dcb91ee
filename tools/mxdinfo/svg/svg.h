// Symbols drawn as SVG. Lengths are points, x to the right, y down.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "symbology/color.h"
#include "symbology/symbol.h"

namespace mxdinfo {

struct Point {
  double x = 0;
  double y = 0;
};

struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

// A polyline, closed if it is an outline.
struct Path {
  std::vector<Point> points;
  bool closed = false;
};
Path path_around(const Box& box);

// A point on a path and the direction there in degrees, counter-clockwise.
struct Pose {
  Point at;
  double angle = 0;
};
double length_of(const Path& path);
Pose pose_at(const Path& path, double distance);

// Receives the elements of one picture, within bounds: symbols nest and repeat each other, and a
// damaged document must not make a page of gigabytes.
class Canvas {
 public:
  // Layers of a multilayer symbol, and items of a dash pattern, that are drawn.
  static constexpr std::size_t max_parts = 100;

  // Counts one more symbol or part of one. False if the picture is full.
  bool step() { return !is_full() && steps_ < max_steps && ++steps_ > 0; }
  // Adds one whole element.
  void add(std::string_view element) {
    if (!is_full()) out_.append(element);
  }
  // A hatched box in place of what cannot be drawn.
  void unknown(const Box& box, std::string_view title);

  // Elements that are added until close() are inside this one. False if the picture is full;
  // close() must not be called then.
  bool open(std::string_view start_tag) {
    if (is_full()) return false;
    out_.append(start_tag);
    return true;
  }
  void close(std::string_view end_tag) { out_.append(end_tag); }

  std::string take() { return std::move(out_); }

 private:
  static constexpr std::size_t max_size = 100'000;  // bytes
  static constexpr int max_steps = 3000;

  bool is_full() const { return out_.size() >= max_size; }

  std::string out_;
  int steps_ = 0;
};

// Clamps to a finite value of at most a few thousand points.
double bounded(double value);
std::string number(double value);
// The color as "#rrggbb", or "none".
std::string color_or_none(const mxd::Tmxd_color_slot& slot);

// Each draws a symbol of its family, or an unknown box for anything else, null included. The level
// counts symbols within symbols.
void draw_marker(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Pose& pose, int level);
void draw_line(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Path& path, int level);
void draw_fill(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Box& box, int level);

// How far a marker reaches from its point, and half a line's width with its offset. 0 for symbols
// of other families and null.
double marker_reach(const mxd::Tmxd_symbol* symbol, int level);
double line_reach(const mxd::Tmxd_symbol* symbol, int level);

// Calls draw for the layers of a multilayer symbol that are drawn, from the bottom to the top.
template <class List, class Draw>
void for_each_drawn_layer(const List& layers, Draw draw) {
  for (std::size_t i = std::min(layers.size(), Canvas::max_parts); i-- > 0;) {
    if (layers[i].enabled) draw(layers[i]);
  }
}

// A picture of any symbol, or of null: an <svg> element with these attributes and a title.
std::string swatch_svg(const mxd::Tmxd_symbol* symbol, std::string_view attributes);

}  // namespace mxdinfo
