#include "storage/piece_reader.h"

#include <algorithm>

namespace mxd {

Piece_reader::Piece_reader(Tmxd_stream& stream, std::uint64_t reachable)
    : stream_(stream), file_size_(std::min(stream.get_size(), reachable)) {}

bool Piece_reader::in_file(std::int64_t offset, std::size_t length) const {
  return offset >= 0 && length <= file_size_ &&
         static_cast<std::uint64_t>(offset) <= file_size_ - length;
}

std::size_t Piece_reader::read(std::span<const std::int64_t> offsets, std::size_t piece,
                               std::span<std::uint8_t> to) {
  std::size_t done = 0;
  while (done < offsets.size()) {
    std::size_t end = done;
    std::int64_t offset = offsets[done];
    while (end < offsets.size() && offsets[end] == offset && in_file(offset, piece)) {
      offset += static_cast<std::int64_t>(piece);
      ++end;
    }
    const std::size_t wanted = end - done;
    if (wanted == 0) break;
    const std::size_t arrived =
        read_run(offsets[done], piece, to.subspan(done * piece, wanted * piece));
    done += arrived;
    if (arrived < wanted) break;
  }
  return done;
}

std::size_t Piece_reader::read_run(std::int64_t offset, std::size_t piece,
                                   std::span<std::uint8_t> to) {
  const auto start = static_cast<std::uint64_t>(offset);
  const std::size_t count = to.size() / piece;
  bytes_read_ += to.size();
  if (!stream_.seek(start) || !stream_.read(to.data(), piece, count)) return 0;
  // A file's read is true for a part, too.
  const std::uint64_t end = std::max(stream_.tell(), start);
  return std::min(static_cast<std::size_t>((end - start) / piece), count);
}

}  // namespace mxd
