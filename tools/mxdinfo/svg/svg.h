// Symbols drawn as SVG. Lengths are points, x to the right, y down.
#pragma once

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

// A line to draw along; the sides of an area run back to their start.
struct Path {
  std::vector<Point> points;
  bool closed = false;
};
Path path_around(const Box& box);

// A place on a way, and the direction there in degrees, counter-clockwise.
struct Pose {
  Point at;
  double angle = 0;
};
double length_of(const Path& path);
Pose pose_at(const Path& path, double distance);

// What is drawn, within bounds: symbols nest and repeat each other, and a damaged document must not
// make a page of gigabytes.
class Canvas {
 public:
  static constexpr int max_depth = 8;

  // One more symbol or part of one. False when there is no more room for any.
  bool step() { return left_ > 0 && steps_ > 0 && steps_-- > 0; }
  // One whole element.
  void add(std::string_view element) {
    if (spend()) out_.append(element);
  }
  void unknown(const Box& box, std::string_view title);

  // What is drawn inside stands in this element. False when there is no more room.
  bool open(std::string_view start_tag) {
    if (!spend()) return false;
    out_.append(start_tag);
    return true;
  }
  void close(std::string_view end_tag) { out_.append(end_tag); }

  std::string take() { return std::move(out_); }

 private:
  bool spend() { return left_ > 0 && left_-- > 0; }

  std::string out_;
  int left_ = 1500;
  int steps_ = 3000;
};

// Nothing that a page could not take: finite, and within a few thousand points.
double bounded(double value);
std::string number(double value);
// "none" for no color.
std::string color_or_none(const mxd::Tmxd_color_slot& slot);

// Each draws a symbol of its family, an unknown part in place of anything else. The level counts
// symbols within symbols.
void draw_marker(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Pose& pose, int level);
void draw_line(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Path& path, int level);
void draw_fill(Canvas& canvas, const mxd::Tmxd_symbol* symbol, const Box& box, int level);

// How far from its point a marker reaches, and how wide a line with its offset is.
double marker_reach(const mxd::Tmxd_symbol* symbol, int level);
double line_reach(const mxd::Tmxd_symbol* symbol, int level);

// One picture of a symbol, whatever it is.
std::string swatch_svg(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
