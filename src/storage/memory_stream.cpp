#include "storage/memory_stream.h"

#include <new>
#include <stdexcept>

namespace mxd {

bool Tmxd_stream_m::set_size(std::uint64_t new_size) {
  const std::uint64_t old_size = data_.size();
  if (!resize_uninitialized(new_size)) return false;
  if (new_size > old_size) std::memset(data_.data() + old_size, 0, new_size - old_size);
  return true;
}

bool Tmxd_stream_m::resize_uninitialized(std::uint64_t new_size) {
  try {
    data_.resize(new_size);
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::length_error&) {
    return false;
  }
  return true;
}

bool Tmxd_stream_m::write(const void* buffer, std::uint64_t element_size, std::uint64_t count) {
  const auto n = byte_count(element_size, count);
  if (!n || *n > std::numeric_limits<std::uint64_t>::max() - position_) return false;
  if (position_ + *n <= data_.size() || !set_size(position_ + *n)) return false;
  if (*n != 0) std::memcpy(data_.data() + position_, buffer, *n);
  position_ += *n;
  return true;
}

}  // namespace mxd
