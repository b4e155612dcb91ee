// The platform's file calls, one step above the bare ones: what Tmxd_stream_f stands on.
#pragma once

#include <cstdint>
#include <optional>

#include "storage/text.h"

namespace mxd {

enum class Open_result { opened, sharing_violation, failed };
enum class File_access { read, read_write };
enum class File_creation { open_existing, create_always };
enum class Seek_origin { begin, current, end };

// Others may read the file while it is open here, but not write it.
class Native_file {
 public:
  Native_file() = default;
  Native_file(const Native_file&) = delete;
  Native_file& operator=(const Native_file&) = delete;
  ~Native_file() { close(); }

  // Closes what was open before.
  Open_result open(const Wide_string& path, File_access access, File_creation creation);
  // False when nothing was open.
  bool close();

  // The position moved to. Only the end is asked of the system.
  std::optional<std::uint64_t> seek(std::int64_t distance, Seek_origin origin);
  // How many bytes; fewer than wanted only at the end of the file (or of the disk). Nothing after
  // an error.
  std::optional<std::uint32_t> read(void* buffer, std::uint32_t size);
  std::optional<std::uint32_t> write(const void* buffer, std::uint32_t size);
  // The file ends at the position.
  bool set_end();

 private:
  static constexpr std::intptr_t closed = -1;
  std::optional<std::int64_t> size() const;

  std::intptr_t handle_ = closed;
  std::uint64_t position_ = 0;
};

void sleep_one_millisecond();

}  // namespace mxd
