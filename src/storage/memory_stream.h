// A growable byte buffer as a stream. It holds the document's "Maps" stream.
#pragma once

#include <cstring>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "storage/default_init_vector.h"
#include "storage/stream.h"

namespace mxd {

class Tmxd_stream_m final : public Tmxd_stream {
 public:
  // New bytes are zero. Returns false only if memory runs out. The position does not change, so it
  // may be past the new end.
  [[nodiscard]] bool set_size(std::uint64_t new_size) override;
  // Like set_size(), but leaves new bytes uninitialized for a caller that overwrites all of them.
  [[nodiscard]] bool resize_uninitialized(std::uint64_t new_size);
  [[nodiscard]] std::uint64_t get_size() override { return data_.size(); }
  [[nodiscard]] bool seek(std::uint64_t position) override {
    if (position > data_.size()) return false;
    position_ = position;
    return true;
  }
  [[nodiscard]] std::uint64_t tell() override { return position_; }
  [[nodiscard]] bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    const auto n = byte_count(element_size, count);
    if (!n || position_ > data_.size() || *n > data_.size() - position_) return false;
    if (*n != 0) std::memcpy(buffer, data_.data() + position_, *n);
    position_ += *n;
    return true;
  }
  // Fails unless the write extends the data.
  [[nodiscard]] bool write(const void* buffer, std::uint64_t element_size,
                           std::uint64_t count) override;

  std::span<std::uint8_t> bytes() { return data_; }
  std::span<const std::uint8_t> bytes() const { return data_; }

 private:
  // Empty if the product overflows.
  static std::optional<std::uint64_t> byte_count(std::uint64_t element_size, std::uint64_t count) {
    constexpr std::uint64_t max = std::numeric_limits<std::uint64_t>::max();
    if (element_size != 0 && count > max / element_size) return std::nullopt;
    return element_size * count;
  }

  std::uint64_t position_ = 0;
  Default_init_vector<std::uint8_t> data_;
};

}  // namespace mxd
