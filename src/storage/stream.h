// The byte stream that everything is read through.
#pragma once

#include <cstdint>

namespace mxd {

// Positions and sizes are bytes from the start. Nothing here throws: a failure is false or 0.
class Tmxd_stream {
 public:
  Tmxd_stream() = default;
  Tmxd_stream(const Tmxd_stream&) = delete;
  Tmxd_stream& operator=(const Tmxd_stream&) = delete;
  virtual ~Tmxd_stream() = default;

  virtual bool set_size(std::uint64_t new_size) = 0;
  virtual std::uint64_t get_size() = 0;
  virtual bool seek(std::uint64_t position) = 0;
  virtual std::uint64_t tell() = 0;
  virtual bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) = 0;
  virtual bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) = 0;
};

}  // namespace mxd
