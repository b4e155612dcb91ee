// A file as a stream.
#pragma once

#include "storage/platform.h"
#include "storage/stream.h"
#include "storage/text.h"

namespace mxd {

// read() and write() return true if at least one whole element was transferred, and also after an
// I/O error. A caller that needs all elements must check failed().
class Tmxd_stream_f final : public Tmxd_stream {
 public:
  // `mode` is that of fopen(): "rb", "w", "a+". Waits up to 20 ms for a file that another process
  // has open for writing.
  [[nodiscard]] bool open(const Wide_string& path, Wide_view mode);
  // Returns false if no file is open.
  bool close();

  [[nodiscard]] bool set_size(std::uint64_t new_size) override;
  [[nodiscard]] std::uint64_t get_size() override;
  [[nodiscard]] bool seek(std::uint64_t position) override;
  [[nodiscard]] std::uint64_t tell() override;
  [[nodiscard]] bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override;
  [[nodiscard]] bool write(const void* buffer, std::uint64_t element_size,
                           std::uint64_t count) override;

  // Whether the last read was incomplete. seek(), set_size() and get_size() reset it.
  bool failed() const { return failed_; }
  const Wide_string& line_end() const { return line_end_; }

 private:
  Native_file file_;
  std::uint64_t position_ = 0;
  bool failed_ = false;
  Wide_string line_end_ = from_ascii("\r\n");
};

}  // namespace mxd
