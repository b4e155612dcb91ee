// Symbols along a line.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "mxdinfo/svg/svg.h"
#include "symbology/line_symbols.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// More repetitions than the eye can count would say nothing.
constexpr int max_poses = 60;
constexpr double min_pattern = 0.5;

std::string path_data(const Path& path) {
  std::string d;
  for (const Point& point : path.points) {
    d += fmt::format("{}{} {}", d.empty() ? "M" : "L", number(point.x), number(point.y));
  }
  return path.closed ? d + "Z" : d;
}

// Positive is to the left of the way. The sides of an area stay where they are.
Path shifted(Path path, double offset) {
  if (path.closed || path.points.size() != 2 || offset == 0) return path;
  const double angle = pose_at(path, 0).angle * std::numbers::pi / 180;
  for (Point& point : path.points) {
    point.x -= bounded(offset) * std::sin(angle);
    point.y -= bounded(offset) * std::cos(angle);
  }
  return path;
}

double pattern_length(const Tmxd_line_template& line_template) {
  double length = 0;
  for (const auto& item : line_template.items) {
    length += std::max(0.0, bounded(item.filled)) + std::max(0.0, bounded(item.empty));
  }
  return length * std::max(0.0, bounded(line_template.pattern_interval));
}

bool has_pattern(const Tmxd_line_template& line_template) {
  return line_template.exists && pattern_length(line_template) >= min_pattern;
}

std::string dashes_of(const Tmxd_line_template& line_template) {
  constexpr std::size_t max_dashes = 100;
  if (!has_pattern(line_template)) return {};
  std::string lengths;
  const std::size_t count = std::min(line_template.items.size(), max_dashes);
  for (std::size_t i = 0; i < count; ++i) {
    const auto& item = line_template.items[i];
    const double unit = line_template.pattern_interval;
    lengths += fmt::format("{}{} {}", i == 0 ? "" : " ", number(std::max(0.0, item.filled * unit)),
                           number(std::max(0.0, item.empty * unit)));
  }
  return fmt::format(R"( stroke-dasharray="{}")", lengths);
}

// The middle of each filled part of the pattern, without one at even distances.
std::vector<Pose> poses_along(const Path& path, const Tmxd_line_template& line_template,
                              double distance) {
  std::vector<Pose> poses;
  const double end = length_of(path);
  const auto place = [&](double at) {
    if (at <= end && poses.size() < max_poses) poses.push_back(pose_at(path, at));
  };
  if (!has_pattern(line_template)) {
    const double step = std::max(distance, 1.0);
    for (int i = 0; i < max_poses; ++i) place((i + 0.5) * step);
    return poses;
  }
  const double unit = bounded(line_template.pattern_interval);
  double at = 0;
  while (at < end && poses.size() < max_poses) {
    for (const auto& item : line_template.items) {
      const double filled = std::max(0.0, bounded(item.filled)) * unit;
      if (filled > 0) place(at + filled / 2);
      at += filled + std::max(0.0, bounded(item.empty)) * unit;
      if (at >= end) break;
    }
  }
  return poses;
}

void stroke(Canvas& canvas, const Path& path, const Tmxd_color_slot& color, double width,
            std::string_view more) {
  canvas.add(fmt::format(R"(<path d="{}" fill="none" stroke="{}" stroke-width="{}"{}/>)",
                         path_data(path), color_or_none(color), number(std::max(0.0, width)),
                         more));
}

std::string style_dashes(const Tmxd_simple_line_symbol& symbol) {
  static constexpr std::array<const char*, 5> patterns = {"", "4 2", "1 2", "4 2 1 2",
                                                          "4 2 1 2 1 2"};
  const auto style = static_cast<std::size_t>(symbol.line_type);
  if (symbol.line_type <= 0 || style >= patterns.size()) return {};
  return fmt::format(R"( stroke-dasharray="{}")", patterns[style]);
}

void draw_simple(Canvas& canvas, const Tmxd_simple_line_symbol& symbol, const Path& path) {
  constexpr std::int32_t invisible = 5;
  if (symbol.line_type == invisible) return;
  stroke(canvas, path, symbol.color_slot, symbol.width, style_dashes(symbol));
}

// The ends of a line and its corners, as both are numbered.
std::string cap_and_join(std::int32_t cap, std::int32_t join) {
  const char* cap_name = cap == 1 ? "round" : cap == 2 ? "square" : "butt";
  const char* join_name = join == 1 ? "round" : join == 2 ? "bevel" : "miter";
  return fmt::format(R"( stroke-linecap="{}" stroke-linejoin="{}")", cap_name, join_name);
}

void draw_decoration(Canvas& canvas, const Tmxd_simple_line_decoration_element& element,
                     const Path& path, int level) {
  int left = max_poses;
  for (std::size_t i = 0; i < element.positions.size() && left-- > 0; ++i) {
    Pose pose =
        pose_at(path, std::clamp(bounded(element.positions[i]), 0.0, 1.0) * length_of(path));
    if (element.unfixed_angle) pose.angle = 0;
    if (element.flip_all || (element.flip_first && i == 0)) pose.angle += 180;
    draw_marker(canvas, element.marker.get(), pose, level + 1);
  }
}

void draw_cartographic(Canvas& canvas, const Tmxd_cartographic_line_symbol& symbol,
                       const Path& path, int level) {
  const Path moved = shifted(path, symbol.offset);
  stroke(canvas, moved, symbol.color_slot, symbol.width,
         cap_and_join(symbol.cap, symbol.join) + dashes_of(symbol.line_template));
  for (const auto& item : symbol.line_decoration.elements) {
    const auto* element = dynamic_cast<const Tmxd_simple_line_decoration_element*>(item);
    if (element) draw_decoration(canvas, *element, moved, level);
  }
}

// Short lines across the way, each drawn by the symbol's own line.
void draw_hashes(Canvas& canvas, const Tmxd_hash_line_symbol& symbol, const Path& path, int level) {
  constexpr double distance = 4;
  const double half = std::abs(bounded(symbol.width)) / 2;
  for (const Pose& pose :
       poses_along(shifted(path, symbol.offset), symbol.line_template, distance)) {
    const double angle = (pose.angle + bounded(symbol.angle)) * std::numbers::pi / 180;
    const double x = half * std::cos(angle);
    const double y = half * std::sin(angle);
    const Path hash{{{pose.at.x - x, pose.at.y + y}, {pose.at.x + x, pose.at.y - y}}, false};
    if (symbol.line_slot.get()) {
      draw_line(canvas, symbol.line_slot.get(), hash, level + 1);
    } else {
      stroke(canvas, hash, symbol.color_slot, 1, "");
    }
  }
}

void draw_markers(Canvas& canvas, const Tmxd_marker_line_symbol& symbol, const Path& path,
                  int level) {
  const Tmxd_symbol* marker = symbol.pattern_marker.get();
  const double distance = 3 * marker_reach(marker, 0);
  for (const Pose& pose :
       poses_along(shifted(path, symbol.offset), symbol.line_template, distance)) {
    draw_marker(canvas, marker, pose, level + 1);
  }
}

Box box_of(const Path& path) {
  constexpr double half = 3;
  const Point middle = pose_at(path, length_of(path) / 2).at;
  const double width = std::clamp(length_of(path), 2 * half, 40.0);
  return {middle.x - width / 2, middle.y - half, width, 2 * half};
}

}  // namespace

void draw_line(Canvas& canvas, const Tmxd_symbol* symbol, const Path& path, int level) {
  if (!canvas.step()) return;
  if (!dynamic_cast<const Tmxd_line_symbol*>(symbol) || level > Canvas::max_depth) {
    canvas.unknown(box_of(path), symbol ? "not drawn: no line" : "no line was read");
  } else if (const auto* simple = dynamic_cast<const Tmxd_simple_line_symbol*>(symbol)) {
    draw_simple(canvas, *simple, path);
  } else if (const auto* line = dynamic_cast<const Tmxd_cartographic_line_symbol*>(symbol)) {
    draw_cartographic(canvas, *line, path, level);
  } else if (const auto* hash = dynamic_cast<const Tmxd_hash_line_symbol*>(symbol)) {
    draw_hashes(canvas, *hash, path, level);
  } else if (const auto* markers = dynamic_cast<const Tmxd_marker_line_symbol*>(symbol)) {
    draw_markers(canvas, *markers, path, level);
  } else if (const auto* layers = dynamic_cast<const Tmxd_multilayer_line_symbol*>(symbol)) {
    for (std::size_t i = layers->line_symbols.size(); i-- > 0;) {
      const Tmxd_symbol& layer = layers->line_symbols[i];
      if (layer.enabled) draw_line(canvas, &layer, path, level + 1);
    }
  }
}

double line_reach(const Tmxd_symbol* symbol, int level) {
  if (!symbol || level > Canvas::max_depth) return 0;
  if (const auto* layers = dynamic_cast<const Tmxd_multilayer_line_symbol*>(symbol)) {
    double reach = 0;
    for (const auto& layer : layers->line_symbols) {
      if (layer->enabled) reach = std::max(reach, line_reach(layer, level + 1));
    }
    return reach;
  }
  if (const auto* simple = dynamic_cast<const Tmxd_simple_line_symbol*>(symbol)) {
    return bounded(simple->width) / 2;
  }
  if (const auto* line = dynamic_cast<const Tmxd_cartographic_line_symbol*>(symbol)) {
    return bounded(line->width) / 2 + std::abs(bounded(line->offset));
  }
  if (const auto* hash = dynamic_cast<const Tmxd_hash_line_symbol*>(symbol)) {
    return bounded(hash->width) / 2 + std::abs(bounded(hash->offset));
  }
  const auto* markers = dynamic_cast<const Tmxd_marker_line_symbol*>(symbol);
  if (!markers) return 0;
  return marker_reach(markers->pattern_marker.get(), level + 1) +
         std::abs(bounded(markers->offset));
}

}  // namespace mxdinfo
