#include "storage/coalescing_reader.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace mxd {

Coalescing_reader::Coalescing_reader(Tmxd_stream& stream, std::uint64_t reachable)
    : stream_(stream),
      file_size_(std::min(stream.get_size(), reachable)),
      waste_left_(static_cast<std::int64_t>(file_size_ / max_waste_divisor)) {}

bool Coalescing_reader::in_file(std::int64_t offset, std::size_t length) const {
  return offset >= 0 && length <= file_size_ &&
         static_cast<std::uint64_t>(offset) <= file_size_ - length;
}

std::size_t Coalescing_reader::read(std::span<const std::int64_t> offsets, std::size_t piece_size,
                                    std::span<std::uint8_t> to) {
  assert(offsets.empty() || (piece_size != 0 && to.size() / piece_size >= offsets.size()));
  std::size_t done = 0;
  while (done < offsets.size()) {
    const auto rest = offsets.subspan(done);
    const std::size_t contiguous = contiguous_count(rest, piece_size);
    const std::size_t close = window_count(rest, piece_size);
    const std::size_t wanted = std::max(contiguous, close);
    if (wanted == 0) break;
    const auto part = to.subspan(done * piece_size, wanted * piece_size);
    const std::size_t arrived = close > contiguous
                                    ? read_window(rest.first(close), piece_size, part)
                                    : read_bytes(rest.front(), part) / piece_size;
    done += arrived;
    if (arrived < wanted) break;
  }
  return done;
}

std::size_t Coalescing_reader::contiguous_count(std::span<const std::int64_t> offsets,
                                                std::size_t piece_size) const {
  std::size_t count = 0;
  std::int64_t offset = offsets.front();
  while (count < offsets.size() && offsets[count] == offset && in_file(offset, piece_size)) {
    offset += static_cast<std::int64_t>(piece_size);
    ++count;
  }
  return count;
}

// How many of the next pieces are worth reading together with the gaps between them.
std::size_t Coalescing_reader::window_count(std::span<const std::int64_t> offsets,
                                            std::size_t piece_size) const {
  const auto size = static_cast<std::int64_t>(piece_size);
  std::size_t count = 0;
  std::int64_t low = offsets.front();
  std::int64_t high = low;
  if (piece_size < min_coalesced_size) return 0;
  for (std::size_t i = 0; i < offsets.size() && in_file(offsets[i], piece_size); ++i) {
    low = std::min(low, offsets[i]);
    high = std::max(high, offsets[i] + size);
    if (high - low > window_size) break;
    const std::int64_t waste = high - low - static_cast<std::int64_t>(i + 1) * size;
    if (waste <= waste_left_) count = i + 1;
  }
  return count;
}

std::size_t Coalescing_reader::read_window(std::span<const std::int64_t> offsets,
                                           std::size_t piece_size, std::span<std::uint8_t> to) {
  const auto [low, high] = std::ranges::minmax(offsets);
  std::array<std::uint8_t, window_size> window;
  const auto size = static_cast<std::size_t>(high - low) + piece_size;
  waste_left_ -= static_cast<std::int64_t>(size) - static_cast<std::int64_t>(to.size());
  const std::size_t arrived = read_bytes(low, std::span(window).first(size));
  for (std::size_t i = 0; i < offsets.size(); ++i) {
    const auto start = static_cast<std::size_t>(offsets[i] - low);
    if (start + piece_size > arrived) return i;
    std::ranges::copy(std::span(window).subspan(start, piece_size),
                      to.subspan(i * piece_size).begin());
  }
  return offsets.size();
}

// Returns how many bytes were read.
std::size_t Coalescing_reader::read_bytes(std::int64_t offset, std::span<std::uint8_t> to) {
  const auto start = static_cast<std::uint64_t>(offset);
  if (!stream_.seek(start) || !stream_.read(to.data(), 1, to.size())) return 0;
  // A file stream also returns true for a partial read; the position shows how much arrived.
  const std::uint64_t end = std::max(stream_.tell(), start);
  return std::min(static_cast<std::size_t>(end - start), to.size());
}

}  // namespace mxd
