// Reads lists of equally sized pieces of a file with few system calls.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "storage/stream.h"

namespace mxd {

using Offsets = std::vector<std::int64_t>;

class Coalescing_reader {
 public:
  // Bytes from offset `reachable` on are treated as missing.
  Coalescing_reader(Tmxd_stream& stream, std::uint64_t reachable);

  std::uint64_t file_size() const { return file_size_; }
  bool in_file(std::int64_t offset, std::size_t length) const;

  // Reads the pieces one after another into `to`, up to the first that cannot be read completely,
  // and returns their number. Pieces that are contiguous or close together in the file are read
  // with one call.
  [[nodiscard]] std::size_t read(std::span<const std::int64_t> offsets, std::size_t piece_size,
                                 std::span<std::uint8_t> to);

 private:
  // A system call costs about as much as reading a few thousand bytes. The gaps read along with the
  // pieces are limited to a fraction of the file, so that no file makes this expensive.
  static constexpr std::int64_t window_size = 16384;
  static constexpr std::uint64_t max_waste_divisor = 16;
  // Smaller pieces are not coalesced: a window would hold too many of them.
  static constexpr std::size_t min_coalesced_size = 64;

  std::size_t contiguous_count(std::span<const std::int64_t> offsets, std::size_t piece_size) const;
  std::size_t window_count(std::span<const std::int64_t> offsets, std::size_t piece_size) const;
  std::size_t read_window(std::span<const std::int64_t> offsets, std::size_t piece_size,
                          std::span<std::uint8_t> to);
  std::size_t read_bytes(std::int64_t offset, std::span<std::uint8_t> to);

  Tmxd_stream& stream_;
  std::uint64_t file_size_;
  std::int64_t waste_left_;
};

}  // namespace mxd
