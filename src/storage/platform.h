// The services of the operating system: files, its 8-bit code page and its comparison of names.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "storage/text.h"

namespace mxd {

enum class Open_result { opened, sharing_violation, failed };
enum class File_access { read, read_write };
enum class File_creation { open_existing, create_always };

// A regular file without a position of its own. While it is open, others may read but not write it.
class Native_file {
 public:
  Native_file() = default;
  Native_file(const Native_file&) = delete;
  Native_file& operator=(const Native_file&) = delete;
  ~Native_file() { static_cast<void>(close()); }

  // Closes the current file first.
  [[nodiscard]] Open_result open(const Wide_string& path, File_access access,
                                 File_creation creation);
  // Returns false if no file is open.
  [[nodiscard]] bool close();
  bool is_open() const { return handle_ != closed; }

  [[nodiscard]] std::optional<std::uint64_t> size() const;
  [[nodiscard]] bool set_size(std::uint64_t size);

  // Return the number of bytes transferred: fewer than `size` only at the end of the file or on a
  // full disk. Empty after an error. `position` advances by what was transferred, even before an
  // error.
  [[nodiscard]] std::optional<std::uint32_t> read(void* buffer, std::uint32_t size,
                                                  std::uint64_t& position);
  [[nodiscard]] std::optional<std::uint32_t> write(const void* buffer, std::uint32_t size,
                                                   std::uint64_t& position);

 private:
  static constexpr std::intptr_t closed = -1;

  std::intptr_t handle_ = closed;
};

// Creates or truncates a file for writing in text mode. Returns null if it cannot be opened; a pipe
// without a reader cannot. The caller closes the file.
[[nodiscard]] std::FILE* open_text_output(const Wide_string& path);

void sleep_one_millisecond();

// Compares names as the platform does; where it defines no comparison, only ASCII letters are
// folded.
[[nodiscard]] bool equal_ignoring_case(Wide_view left, Wide_view right);

}  // namespace mxd
