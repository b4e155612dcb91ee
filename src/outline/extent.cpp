#include "outline/extent.h"

#include <cmath>

#include "core/read_helpers.h"

namespace mxd {
namespace {

constexpr Guid envelope_id = guid_from_text("30707212-52D5-11D0-A8F2-00608C85EDE5");

std::optional<Extent> read_envelope(Byte_view& bytes) {
  Object_start start;
  std::uint16_t version = 0;
  Extent extent;
  if (!(read_object_start(bytes, start) && start.class_id == envelope_id &&
        read_number(bytes, version) && version == 3 &&
        read_numbers(bytes, extent.xmin, extent.ymin, extent.xmax, extent.ymax))) {
    return std::nullopt;
  }
  const bool finite =
      std::isfinite(extent.xmax - extent.xmin) && std::isfinite(extent.ymax - extent.ymin);
  if (!finite || extent.xmin > extent.xmax || extent.ymin > extent.ymax) return std::nullopt;
  return extent;
}

enum class Next { envelope, none, other };

// After an envelope: 4 bytes, a reference to its coordinate system or 16 zero bytes, and a second
// envelope or 16 zero bytes.
Next read_next(Byte_view& bytes) {
  Guid id;
  if (!bytes.skip(4) || !read_guid(bytes, id)) return Next::other;
  if (!id.is_null() && !bytes.skip(Object_start::size - 16)) return Next::other;
  if (!read_guid(bytes, id)) return Next::other;
  return id == envelope_id ? Next::envelope : id.is_null() ? Next::none : Next::other;
}

}  // namespace

std::optional<Extent> find_extent(Byte_search& stream, std::uint64_t from, std::uint64_t end) {
  std::optional<Extent> single;
  while (const auto place = stream.first(from, end, {&envelope_id, 1})) {
    Byte_view bytes = stream.view(*place, end);
    const auto extent = read_envelope(bytes);
    const Next next = extent ? read_next(bytes) : Next::other;
    if (next == Next::envelope) return extent;
    if (next == Next::none && !single) single = extent;
    from = *place + 1;
  }
  return single;
}

}  // namespace mxd
