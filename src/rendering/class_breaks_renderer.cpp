#include "rendering/class_breaks_renderer.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/read_helpers.h"

namespace mxd {
namespace {

// More ranges are treated as corrupt data.
constexpr std::int32_t max_ranges = 9999;

bool read_bounds(Tmxd_mxd_stream& stream, std::vector<double>& bounds) {
  return std::all_of(bounds.begin(), bounds.end(),
                     [&](double& bound) { return read_number(stream, bound); });
}

}  // namespace

bool Tmxd_ranges::read(Tmxd_mxd_stream& stream) {
  min_bounds.clear();
  max_bounds.clear();
  std::int32_t count = 0;
  if (!read_number(stream, count) || count < 0 || count > max_ranges) return false;
  const auto ranges = static_cast<std::size_t>(count);
  if (!stream.load().spend(2 * ranges * sizeof(double))) return false;
  max_bounds.resize(ranges);
  min_bounds.resize(ranges);
  return read_bounds(stream, max_bounds) && read_bounds(stream, min_bounds);
}

std::int32_t Tmxd_ranges::size() const {
  return static_cast<std::int32_t>(std::min(min_bounds.size(), max_bounds.size()));
}

double Tmxd_ranges::bound(const std::vector<double>& bounds, std::int32_t index) const {
  return index < 0 || index >= size() ? 0.0 : bounds[static_cast<std::size_t>(index)];
}

void Tmxd_ranges::describe(Field_writer& writer) const {
  writer.group(Key("mxd_ranges", "ranges"), [&] {
    for (std::int32_t i = 0; i < size(); ++i) {
      writer.narrow_text(Key("rng_", "rng_", i + 1),
                         double_text(min_bnd(i)) + " -.- " + double_text(max_bnd(i)));
    }
  });
}

bool Tmxd_class_breaks_renderer::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_wide_string(stream, propname) && read_wide_string(stream, wstr2) &&
         ranges.read(stream) && read_bytes(stream, bytes1) &&
         read_object(main_leg_grp, stream, -1, limit) && note_position(stream, legend_end);
}

void Tmxd_class_breaks_renderer::describe(Field_writer& writer) const {
  writer.text("propname", propname);
  ranges.describe(writer);
  writer.bytes("bytes1", bytes1);
  writer.object("main_leg_grp", main_leg_grp);
}

}  // namespace mxd
