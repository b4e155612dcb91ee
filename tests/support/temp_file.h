// A file of its own folder that is gone with the test.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "storage/stream.h"
#include "storage/text.h"

namespace mxd::test {

class Temp_file {
 public:
  explicit Temp_file(std::span<const std::uint8_t> bytes = {},
                     std::u16string_view name = u"map.mxd");
  Temp_file(const Temp_file&) = delete;
  Temp_file& operator=(const Temp_file&) = delete;
  ~Temp_file();

  const Wide_string& path() const { return path_; }
  // In place of what the file held.
  void write(std::span<const std::uint8_t> bytes) const;
  // Another path in the same folder; nothing exists there yet.
  Wide_string beside(std::u16string_view name) const;
  Wide_string folder() const;
  Byte_run contents() const;
  // The contents as text: lines end in "\n" whatever they end in on disk.
  std::string text() const;

 private:
  std::filesystem::path folder_;
  std::filesystem::path file_;
  Wide_string path_;
};

}  // namespace mxd::test
