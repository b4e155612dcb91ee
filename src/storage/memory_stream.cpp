#include "storage/memory_stream.h"

#include <cstring>
#include <limits>
#include <new>
#include <optional>
#include <stdexcept>

namespace mxd {
namespace {

// Nothing when the product does not fit: no buffer is that long.
std::optional<std::uint64_t> byte_count(std::uint64_t element_size, std::uint64_t count) {
  if (element_size != 0 && count > std::numeric_limits<std::uint64_t>::max() / element_size) {
    return std::nullopt;
  }
  return element_size * count;
}

}  // namespace

bool Tmxd_stream_m::set_size(std::uint64_t new_size) {
  try {
    data_.resize(new_size);
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::length_error&) {
    return false;
  }
  return true;
}

bool Tmxd_stream_m::seek(std::uint64_t position) {
  if (position > data_.size()) return false;
  position_ = position;
  return true;
}

bool Tmxd_stream_m::read(void* buffer, std::uint64_t element_size, std::uint64_t count) {
  const auto n = byte_count(element_size, count);
  if (!n || position_ > data_.size() || *n > data_.size() - position_) return false;
  if (*n != 0) std::memcpy(buffer, data_.data() + position_, *n);
  position_ += *n;
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
