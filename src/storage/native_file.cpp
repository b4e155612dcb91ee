#include "storage/native_file.h"

#include <limits>

namespace mxd {

std::optional<std::uint64_t> Native_file::seek(std::int64_t distance, Seek_origin origin) {
  if (handle_ == closed) return std::nullopt;
  std::int64_t base = 0;
  if (origin == Seek_origin::current) base = static_cast<std::int64_t>(position_);
  if (origin == Seek_origin::end) {
    const auto end = size();
    if (!end) return std::nullopt;
    base = *end;
  }
  if (distance > std::numeric_limits<std::int64_t>::max() - base || base + distance < 0) {
    return std::nullopt;
  }
  position_ = static_cast<std::uint64_t>(base + distance);
  return position_;
}

}  // namespace mxd
