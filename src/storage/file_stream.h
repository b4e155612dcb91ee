// A file as a stream.
#pragma once

#include "storage/native_file.h"
#include "storage/stream.h"
#include "storage/text.h"

namespace mxd {

// read and write are true as soon as one whole element was moved, and also after an error of the
// system: a caller that needs all elements looks at failed().
class Tmxd_stream_f final : public Tmxd_stream {
 public:
  // The mode is that of the C library: "rb", "w", "a+". Waits up to 20 ms for a file that somebody
  // else has open for writing.
  bool open(const Wide_string& path, Wide_view mode);
  // False when nothing was open.
  bool close();

  bool set_size(std::uint64_t new_size) override;
  std::uint64_t get_size() override;
  bool seek(std::uint64_t position) override;
  std::uint64_t tell() override;
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override;
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override;

  // The last read was short or failed; any move of the position forgets it.
  bool failed() const { return failed_; }
  const Wide_string& line_end() const { return line_end_; }

 private:
  Native_file file_;
  bool failed_ = false;
  Wide_string line_end_ = from_ascii("\r\n");
};

}  // namespace mxd
