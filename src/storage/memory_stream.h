// A growable byte buffer as a stream: holds the document's decoded "Maps" stream.
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
  // New bytes are zero; false only when memory runs out. The position may end up past the end.
  bool set_size(std::uint64_t new_size) override;
  // The same for who writes all new bytes, which are anything until then.
  bool resize_uninitialized(std::uint64_t new_size);
  std::uint64_t get_size() override { return data_.size(); }
  bool seek(std::uint64_t position) override {
    if (position > data_.size()) return false;
    position_ = position;
    return true;
  }
  std::uint64_t tell() override { return position_; }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    const auto n = byte_count(element_size, count);
    if (!n || position_ > data_.size() || *n > data_.size() - position_) return false;
    if (*n != 0) std::memcpy(buffer, data_.data() + position_, *n);
    position_ += *n;
    return true;
  }
  // An append-only sink: refuses whatever would not extend the data.
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override;

  std::span<std::uint8_t> bytes() { return data_; }

 private:
  // Nothing when the product does not fit: no buffer is that long.
  static std::optional<std::uint64_t> byte_count(std::uint64_t element_size, std::uint64_t count) {
    constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
    if (element_size != 0 && count > most / element_size) return std::nullopt;
    return element_size * count;
  }

  std::uint64_t position_ = 0;
  Default_init_vector<std::uint8_t> data_;
};

}  // namespace mxd
