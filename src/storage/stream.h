// The byte stream interface.
#pragma once

#include <cstdint>
#include <vector>

namespace mxd {

using Byte_run = std::vector<std::uint8_t>;

// Positions and sizes are in bytes. No function throws: a failure is false or 0.
class Tmxd_stream {
 public:
  Tmxd_stream() = default;
  Tmxd_stream(const Tmxd_stream&) = delete;
  Tmxd_stream& operator=(const Tmxd_stream&) = delete;
  virtual ~Tmxd_stream() = default;

  [[nodiscard]] virtual bool set_size(std::uint64_t new_size) = 0;
  [[nodiscard]] virtual std::uint64_t get_size() = 0;
  [[nodiscard]] virtual bool seek(std::uint64_t position) = 0;
  [[nodiscard]] virtual std::uint64_t tell() = 0;
  [[nodiscard]] virtual bool read(void* buffer, std::uint64_t element_size,
                                  std::uint64_t count) = 0;
  [[nodiscard]] virtual bool write(const void* buffer, std::uint64_t element_size,
                                   std::uint64_t count) = 0;
};

}  // namespace mxd
