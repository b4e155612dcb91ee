// Draws line symbols.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "mxdinfo/facts/facts.h"
#include "mxdinfo/svg/svg.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// More repetitions could not be distinguished.
constexpr std::size_t max_poses = 60;
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

std::span<const Tmxd_line_template_item> drawn_items(const Tmxd_line_template& line_template) {
  return std::span(line_template.items)
      .first(std::min(line_template.items.size(), Canvas::max_parts));
}

double pattern_length(const Tmxd_line_template& line_template) {
  double length = 0;
  for (const auto& item : drawn_items(line_template)) {
    length += std::max(0.0, bounded(item.filled)) + std::max(0.0, bounded(item.empty));
  }
  return length * std::max(0.0, bounded(line_template.pattern_interval));
}

bool has_pattern(const Tmxd_line_template& line_template) {
  return line_template.exists && pattern_length(line_template) >= min_pattern;
}

std::string dashes_of(const Tmxd_line_template& line_template) {
  if (!has_pattern(line_template)) return {};
  std::string lengths;
  for (const auto& item : drawn_items(line_template)) {
    const double unit = line_template.pattern_interval;
    lengths += fmt::format("{}{} {}", lengths.empty() ? "" : " ",
                           number(std::max(0.0, item.filled * unit)),
                           number(std::max(0.0, item.empty * unit)));
  }
  return fmt::format(R"( stroke-dasharray="{}")", lengths);
}

// The middle of each filled part of the pattern; without a pattern, at even distances.
std::vector<Pose> poses_along(const Path& path, const Tmxd_line_template& line_template,
                              double distance) {
  std::vector<Pose> poses;
  const double end = length_of(path);
  const auto add = [&](double at) {
    if (at <= end && poses.size() < max_poses) poses.push_back(pose_at(path, at));
  };
  if (!has_pattern(line_template)) {
    const double step = std::max(distance, 1.0);
    for (std::size_t i = 0; i < max_poses; ++i) add((static_cast<double>(i) + 0.5) * step);
    return poses;
  }
  const double unit = bounded(line_template.pattern_interval);
  double at = 0;
  // The second bound ends the walk if nothing in the pattern is filled.
  for (std::size_t rounds = 0; at < end && poses.size() < max_poses && rounds < max_poses;
       ++rounds) {
    for (const auto& item : drawn_items(line_template)) {
      const double filled = std::max(0.0, bounded(item.filled)) * unit;
      if (filled > 0) add(at + filled / 2);
      at += filled + std::max(0.0, bounded(item.empty)) * unit;
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

std::string cap_and_join(std::int32_t cap, std::int32_t join) {
  const char* cap_name = cap == 1 ? "round" : cap == 2 ? "square" : "butt";
  const char* join_name = join == 1 ? "round" : join == 2 ? "bevel" : "miter";
  return fmt::format(R"( stroke-linecap="{}" stroke-linejoin="{}")", cap_name, join_name);
}

void draw_decoration(Canvas& canvas, const Tmxd_simple_line_decoration_element& element,
                     const Path& path, int level) {
  for (std::size_t i = 0; i < std::min(element.positions.size(), max_poses); ++i) {
    const double position = std::clamp(bounded(element.positions[i]), 0.0, 1.0);
    Pose pose = pose_at(path, position * length_of(path));
    if (element.unfixed_angle) pose.angle = 0;
    // A flipped first marker points away from the line. One at the end does so unflipped.
    const bool first_flipped = element.flip_first && i == 0 && position < 1;
    if (element.flip_all || first_flipped) pose.angle += 180;
    draw_marker(canvas, element.marker.get(), pose, level + 1);
  }
}

void draw_cartographic(Canvas& canvas, const Tmxd_cartographic_line_symbol& symbol,
                       const Path& path, int level) {
  const Path moved = shifted(path, symbol.offset);
  stroke(canvas, moved, symbol.color_slot, symbol.width,
         cap_and_join(symbol.cap, symbol.join) + dashes_of(symbol.line_template));
  for (const auto* item : symbol.line_decoration.elements) {
    visit(*item, [&](const Tmxd_simple_line_decoration_element& element) {
      draw_decoration(canvas, element, moved, level);
    });
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
  if (!symbol || level > max_symbol_depth) {
    canvas.unknown(box_of(path), symbol ? "not drawn: nested too deeply" : "no line was read");
    return;
  }
  const auto not_drawn = [&] { canvas.unknown(box_of(path), "not drawn: no line"); };
  visit(*symbol,
        Overloaded{
            [&](const Tmxd_simple_line_symbol& line) { draw_simple(canvas, line, path); },
            [&](const Tmxd_cartographic_line_symbol& line) {
              draw_cartographic(canvas, line, path, level);
            },
            [&](const Tmxd_hash_line_symbol& line) { draw_hashes(canvas, line, path, level); },
            [&](const Tmxd_marker_line_symbol& line) { draw_markers(canvas, line, path, level); },
            [&](const Tmxd_multilayer_line_symbol& line) {
              for_each_drawn_layer(line.line_symbols, [&](const Tmxd_symbol& layer) {
                draw_line(canvas, &layer, path, level + 1);
              });
            },
            [&](const Tmxd_marker_symbol&) { not_drawn(); },
            [&](const Tmxd_fill_symbol&) { not_drawn(); },
        });
}

double line_reach(const Tmxd_symbol* symbol, int level) {
  if (!symbol || level > max_symbol_depth) return 0;
  const auto reach = [](double width, double offset) {
    return bounded(width) / 2 + std::abs(bounded(offset));
  };
  return visit(
      *symbol,
      Overloaded{
          [&](const Tmxd_simple_line_symbol& line) { return reach(line.width, 0); },
          [&](const Tmxd_cartographic_line_symbol& line) { return reach(line.width, line.offset); },
          [&](const Tmxd_hash_line_symbol& line) { return reach(line.width, line.offset); },
          [&](const Tmxd_marker_line_symbol& line) {
            return marker_reach(line.pattern_marker.get(), level + 1) + reach(0, line.offset);
          },
          [&](const Tmxd_multilayer_line_symbol& line) {
            double widest = 0;
            for_each_drawn_layer(line.line_symbols, [&](const Tmxd_symbol& layer) {
              widest = std::max(widest, line_reach(&layer, level + 1));
            });
            return widest;
          },
          [](const Tmxd_marker_symbol&) { return 0.0; },
          [](const Tmxd_fill_symbol&) { return 0.0; },
      });
}

}  // namespace mxdinfo
