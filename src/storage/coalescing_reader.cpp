#include "storage/coalescing_reader.h"

#include <algorithm>
#include <array>

namespace mxd {

Coalescing_reader::Coalescing_reader(Tmxd_stream& stream, std::uint64_t reachable)
    : stream_(stream),
      file_size_(std::min(stream.get_size(), reachable)),
      unwanted_left_(static_cast<std::int64_t>(file_size_ / unwanted_share)) {}

bool Coalescing_reader::in_file(std::int64_t offset, std::size_t length) const {
  return offset >= 0 && length <= file_size_ &&
         static_cast<std::uint64_t>(offset) <= file_size_ - length;
}

std::size_t Coalescing_reader::read(std::span<const std::int64_t> offsets, std::size_t piece,
                                    std::span<std::uint8_t> to) {
  std::size_t done = 0;
  while (done < offsets.size()) {
    const auto rest = offsets.subspan(done);
    const std::size_t run = pieces_in_a_row(rest, piece);
    const std::size_t near = pieces_in_window(rest, piece);
    const std::size_t wanted = std::max(run, near);
    if (wanted == 0) break;
    const auto part = to.subspan(done * piece, wanted * piece);
    const std::size_t arrived = near > run ? read_window(rest.first(near), piece, part)
                                           : read_bytes(rest.front(), part) / piece;
    done += arrived;
    if (arrived < wanted) break;
  }
  return done;
}

std::size_t Coalescing_reader::pieces_in_a_row(std::span<const std::int64_t> offsets,
                                               std::size_t piece) const {
  std::size_t count = 0;
  std::int64_t offset = offsets.front();
  while (count < offsets.size() && offsets[count] == offset && in_file(offset, piece)) {
    offset += static_cast<std::int64_t>(piece);
    ++count;
  }
  return count;
}

// As many as are worth to be read with all that lies between them.
std::size_t Coalescing_reader::pieces_in_window(std::span<const std::int64_t> offsets,
                                                std::size_t piece) const {
  const auto size = static_cast<std::int64_t>(piece);
  std::size_t count = 0;
  std::int64_t low = offsets.front();
  std::int64_t high = low;
  if (piece < least_piece) return 0;
  for (std::size_t i = 0; i < offsets.size() && in_file(offsets[i], piece); ++i) {
    low = std::min(low, offsets[i]);
    high = std::max(high, offsets[i] + size);
    if (high - low > window_size) break;
    const std::int64_t unwanted = high - low - static_cast<std::int64_t>(i + 1) * size;
    if (unwanted <= unwanted_left_) count = i + 1;
  }
  return count;
}

std::size_t Coalescing_reader::read_window(std::span<const std::int64_t> offsets, std::size_t piece,
                                           std::span<std::uint8_t> to) {
  const auto [low, high] = std::ranges::minmax(offsets);
  std::array<std::uint8_t, window_size> window;
  const auto size = static_cast<std::size_t>(high - low) + piece;
  unwanted_left_ -= static_cast<std::int64_t>(size) - static_cast<std::int64_t>(to.size());
  const std::size_t arrived = read_bytes(low, std::span(window).first(size));
  for (std::size_t i = 0; i < offsets.size(); ++i) {
    const auto start = static_cast<std::size_t>(offsets[i] - low);
    if (start + piece > arrived) return i;
    std::ranges::copy(std::span(window).subspan(start, piece), to.subspan(i * piece).begin());
  }
  return offsets.size();
}

std::size_t Coalescing_reader::read_bytes(std::int64_t offset, std::span<std::uint8_t> to) {
  const auto start = static_cast<std::uint64_t>(offset);
  bytes_read_ += to.size();
  if (!stream_.seek(start) || !stream_.read(to.data(), 1, to.size())) return 0;
  // A file's read is true for a part, too.
  const std::uint64_t end = std::max(stream_.tell(), start);
  return std::min(static_cast<std::size_t>(end - start), to.size());
}

}  // namespace mxd
