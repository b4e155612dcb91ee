#include "storage/file_stream.h"

#include <limits>

namespace mxd {
namespace {

// The byte count of each call must fit into 32 bits.
constexpr std::uint32_t chunk_size = 0x40000000;
constexpr std::uint64_t error_count = std::numeric_limits<std::uint64_t>::max();
constexpr int max_open_attempts = 20;

// Calls `move(offset, size)` for one chunk after another until one is incomplete. Returns the
// number of whole elements moved, or error_count after an error.
template <typename Move>
std::uint64_t move_elements(std::uint64_t element_size, std::uint64_t count, Move move) {
  if (count > std::numeric_limits<std::uint64_t>::max() / element_size) return 0;
  const std::uint64_t total = element_size * count;
  std::uint64_t done = 0;
  while (true) {
    const std::uint64_t rest = total - done;
    const std::uint32_t size = rest > chunk_size ? chunk_size : static_cast<std::uint32_t>(rest);
    const std::optional<std::uint32_t> moved = move(done, size);
    if (!moved) return error_count;
    done += *moved;
    if (*moved < size || done == total) return done / element_size;
  }
}

bool contains(Wide_view mode, char letter) {
  return mode.find(static_cast<Wide_char>(letter)) != Wide_view::npos;
}

}  // namespace

bool Tmxd_stream_f::open(const Wide_string& path, Wide_view mode) {
  const bool create = contains(mode, 'w');
  const bool append = contains(mode, 'a');
  const auto access =
      create || append || contains(mode, '+') ? File_access::read_write : File_access::read;
  const auto creation = create ? File_creation::create_always : File_creation::open_existing;
  failed_ = false;
  position_ = 0;
  for (int i = 0; i < max_open_attempts; ++i) {
    const Open_result result = file_.open(path, access, creation);
    if (result == Open_result::opened) {
      if (append) position_ = file_.size().value_or(0);
      return true;
    }
    if (result == Open_result::failed) return false;
    sleep_one_millisecond();
  }
  return false;
}

bool Tmxd_stream_f::close() {
  line_end_.clear();
  position_ = 0;
  return file_.close();
}

bool Tmxd_stream_f::set_size(std::uint64_t new_size) {
  return seek(new_size) && file_.set_size(new_size);
}

std::uint64_t Tmxd_stream_f::get_size() {
  failed_ = false;
  return file_.size().value_or(0);
}

bool Tmxd_stream_f::seek(std::uint64_t position) {
  constexpr std::uint64_t max_position = std::numeric_limits<std::int64_t>::max();
  failed_ = false;
  if (!file_.is_open() || position > max_position) return false;
  position_ = position;
  return true;
}

std::uint64_t Tmxd_stream_f::tell() {
  return position_;
}

bool Tmxd_stream_f::read(void* buffer, std::uint64_t element_size, std::uint64_t count) {
  if (element_size == 0) return false;
  const std::uint64_t elements =
      move_elements(element_size, count, [&](std::uint64_t offset, std::uint32_t size) {
        return file_.read(static_cast<char*>(buffer) + offset, size, position_);
      });
  if (elements != count) failed_ = true;
  return elements != 0;
}

bool Tmxd_stream_f::write(const void* buffer, std::uint64_t element_size, std::uint64_t count) {
  if (element_size == 0) return false;
  const std::uint64_t elements =
      move_elements(element_size, count, [&](std::uint64_t offset, std::uint32_t size) {
        return file_.write(static_cast<const char*>(buffer) + offset, size, position_);
      });
  return elements != 0;
}

}  // namespace mxd
