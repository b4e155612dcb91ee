// Uninterpreted bytes of a document, kept in place.
#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>

#include "storage/ieee_stream.h"

namespace mxd {

// A run of up to max_size bytes; empty until it is read.
template <std::size_t max_size>
class Fixed_bytes {
 public:
  std::size_t size() const { return size_; }
  operator std::span<const std::uint8_t>() const { return std::span(bytes_).first(size_); }

  std::span<std::uint8_t> zeros(std::size_t size) {
    assert(size <= max_size);
    size_ = size;
    std::ranges::fill(bytes_, std::uint8_t{0});
    return std::span(bytes_).first(size);
  }

 private:
  std::array<std::uint8_t, max_size> bytes_{};
  std::size_t size_ = 0;
};

// Reads `size` bytes, or as many as the run takes. After a failure the run has its full size, and
// what could not be read is zero.
template <std::size_t max_size>
[[nodiscard]] bool read_bytes(Tmxd_ieee_stream& stream, Fixed_bytes<max_size>& out,
                              std::size_t size = max_size) {
  return read_bytes(stream, out.zeros(size));
}

// Reads bytes that are kept nowhere.
template <std::size_t size>
[[nodiscard]] bool skip_bytes(Tmxd_ieee_stream& stream) {
  Fixed_bytes<size> ignored;
  return read_bytes(stream, ignored);
}

}  // namespace mxd
