// Reads lists of equally long pieces of a file with as few calls to the system as can be.
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
  // What lies behind `reachable` is treated as absent.
  Coalescing_reader(Tmxd_stream& stream, std::uint64_t reachable);

  std::uint64_t file_size() const { return file_size_; }
  // All that was asked of the file so far.
  std::uint64_t bytes_read() const { return bytes_read_; }
  bool in_file(std::int64_t offset, std::size_t length) const;

  // Reads the pieces one after another into `to`, up to the first that cannot be read whole; how
  // many arrived. Pieces that follow each other in the file, or lie close together, are read with
  // one call.
  std::size_t read(std::span<const std::int64_t> offsets, std::size_t piece,
                   std::span<std::uint8_t> to);

 private:
  // A call to the system costs as much as some thousand bytes. What is read besides is bounded by
  // a part of the file, so that no file makes this dear.
  static constexpr std::int64_t window_size = 16384;
  static constexpr std::uint64_t unwanted_share = 16;
  // Of smaller ones, which no honest file has, there are too many in a window.
  static constexpr std::size_t least_piece = 64;

  std::size_t pieces_in_a_row(std::span<const std::int64_t> offsets, std::size_t piece) const;
  std::size_t pieces_in_window(std::span<const std::int64_t> offsets, std::size_t piece) const;
  std::size_t read_window(std::span<const std::int64_t> offsets, std::size_t piece,
                          std::span<std::uint8_t> to);
  // How many bytes arrived.
  std::size_t read_bytes(std::int64_t offset, std::span<std::uint8_t> to);

  Tmxd_stream& stream_;
  std::uint64_t file_size_;
  std::int64_t unwanted_left_;
  std::uint64_t bytes_read_ = 0;
};

}  // namespace mxd
