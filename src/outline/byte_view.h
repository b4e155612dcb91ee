// Bytes of a document, read in place.
#pragma once

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>

#include "storage/ieee_stream.h"

namespace mxd {

// A read-only stream over part of a buffer that outlives it. Positions count from the buffer's
// start; nothing at or past the end is read. Copies read on from the same position.
class Byte_view final : public Tmxd_ieee_stream {
 public:
  Byte_view(std::span<const std::uint8_t> buffer, std::uint64_t position, std::uint64_t end)
      : buffer_(buffer.first(std::min<std::size_t>(end, buffer.size()))), position_(position) {}
  explicit Byte_view(std::span<const std::uint8_t> buffer) : Byte_view(buffer, 0, buffer.size()) {}
  Byte_view(const Byte_view& other)
      : Tmxd_ieee_stream(), buffer_(other.buffer_), position_(other.position_) {}
  Byte_view& operator=(const Byte_view& other) {
    buffer_ = other.buffer_;
    position_ = other.position_;
    return *this;
  }
  ~Byte_view() override = default;

  bool set_size(std::uint64_t /*new_size*/) override { return false; }
  std::uint64_t get_size() override { return buffer_.size(); }
  bool seek(std::uint64_t position) override {
    position_ = position;
    return position <= buffer_.size();
  }
  std::uint64_t tell() override { return position_; }
  bool read(void* out, std::uint64_t element_size, std::uint64_t count) override {
    const std::uint64_t size = element_size * count;
    if (size > left()) return false;
    if (size != 0) std::memcpy(out, buffer_.data() + position_, size);
    position_ += size;
    return true;
  }
  bool write(const void* /*from*/, std::uint64_t /*element_size*/,
             std::uint64_t /*count*/) override {
    return false;
  }

  bool skip(std::uint64_t size) {
    if (size > left()) return false;
    position_ += size;
    return true;
  }
  std::uint64_t left() const { return position_ < buffer_.size() ? buffer_.size() - position_ : 0; }

 private:
  std::span<const std::uint8_t> buffer_;
  std::uint64_t position_;
};

// The class id, number and reserve word that every persisted object begins with.
struct Object_start {
  static constexpr std::uint64_t size = 20;

  Guid class_id;
  std::uint16_t number = 0;
  std::uint16_t reserve = 0;
};

inline bool read_object_start(Byte_view& bytes, Object_start& out) {
  return read_guid(bytes, out.class_id) && read_number(bytes, out.number) &&
         read_number(bytes, out.reserve);
}

// A wide string as ArcMap writes it: one closing NUL and none before, or no units at all. The NUL
// is left out. Anything else is no text, and the position is then unspecified.
std::optional<Wide_string> read_text(Byte_view& bytes);

// Searches in one stream for class ids, and counts its work.
class Byte_search {
 public:
  explicit Byte_search(std::span<const std::uint8_t> stream) : stream_(stream) {}

  std::span<const std::uint8_t> stream() const { return stream_; }
  Byte_view view(std::uint64_t position, std::uint64_t end) const {
    return {stream_, position, end};
  }

  // Where the first of these ids is in [from, to), or nothing.
  std::optional<std::uint64_t> first(std::uint64_t from, std::uint64_t to,
                                     std::span<const Guid> class_ids);

  // Counts bytes that were read at a place that may be read again.
  void count(std::uint64_t bytes) { steps_ += bytes; }

  // Positions that were looked at, and bytes counted.
  std::uint64_t steps() const { return steps_; }

 private:
  std::span<const std::uint8_t> stream_;
  std::uint64_t steps_ = 0;
};

}  // namespace mxd
