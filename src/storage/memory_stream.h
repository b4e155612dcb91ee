// A growable byte buffer as a stream: holds the document's decoded "Maps" stream.
#pragma once

#include <span>
#include <vector>

#include "storage/stream.h"

namespace mxd {

class Tmxd_stream_m final : public Tmxd_stream {
 public:
  // New bytes are zero; false only when memory runs out. The position may end up past the end.
  bool set_size(std::uint64_t new_size) override;
  std::uint64_t get_size() override { return data_.size(); }
  bool seek(std::uint64_t position) override;
  std::uint64_t tell() override { return position_; }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override;
  // An append-only sink: refuses whatever would not extend the data.
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override;

  std::span<std::uint8_t> bytes() { return data_; }

 private:
  std::uint64_t position_ = 0;
  std::vector<std::uint8_t> data_;
};

}  // namespace mxd
