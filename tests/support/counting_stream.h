// A file in memory that counts the bytes that are requested of it.
#pragma once

#include <algorithm>

#include "storage/stream.h"

namespace mxd::test {

// Like a file, it reads partially; like one that shrinks, it may claim more bytes than it has.
class Counting_stream final : public Tmxd_stream {
 public:
  explicit Counting_stream(const Byte_run& bytes) : Counting_stream(bytes, bytes.size()) {}
  Counting_stream(const Byte_run& bytes, std::size_t claimed) : bytes_(bytes), claimed_(claimed) {}

  std::uint64_t bytes_read() const { return bytes_read_; }

  bool set_size(std::uint64_t /*new_size*/) override { return false; }
  std::uint64_t get_size() override { return claimed_; }
  bool seek(std::uint64_t position) override {
    position_ = position;
    return true;
  }
  std::uint64_t tell() override { return position_; }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    bytes_read_ += element_size * count;
    const std::uint64_t start = std::min<std::uint64_t>(position_, bytes_.size());
    const std::uint64_t moved = std::min(element_size * count, bytes_.size() - start);
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(start), moved,
                static_cast<std::uint8_t*>(buffer));
    position_ += moved;
    return moved != 0;
  }
  bool write(const void* /*buffer*/, std::uint64_t /*element_size*/,
             std::uint64_t /*count*/) override {
    return false;
  }

 private:
  const Byte_run& bytes_;
  std::size_t claimed_;
  std::uint64_t position_ = 0;
  std::uint64_t bytes_read_ = 0;
};

}  // namespace mxd::test
