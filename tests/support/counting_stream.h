// Counts the bytes that are requested of a stream.
#pragma once

#include "storage/stream.h"

namespace mxd::test {

class Counting_stream final : public Tmxd_stream {
 public:
  explicit Counting_stream(Tmxd_stream& inner) : inner_(inner) {}

  std::uint64_t bytes_read() const { return bytes_read_; }

  bool set_size(std::uint64_t new_size) override { return inner_.set_size(new_size); }
  std::uint64_t get_size() override { return inner_.get_size(); }
  bool seek(std::uint64_t position) override { return inner_.seek(position); }
  std::uint64_t tell() override { return inner_.tell(); }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    bytes_read_ += element_size * count;
    return inner_.read(buffer, element_size, count);
  }
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return inner_.write(buffer, element_size, count);
  }

 private:
  Tmxd_stream& inner_;
  std::uint64_t bytes_read_ = 0;
};

}  // namespace mxd::test
