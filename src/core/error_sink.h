// Where failed object reads are told.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace mxd {

struct Read_error {
  std::uint16_t number;
  std::string_view type_name;
  std::int64_t position;
};

class Error_sink {
 public:
  Error_sink() = default;
  Error_sink(const Error_sink&) = delete;
  Error_sink& operator=(const Error_sink&) = delete;
  virtual ~Error_sink() = default;
  virtual void read_failed(const Read_error& error) = 0;
};

// "ERROR IN 12 mxd_feature_layer  4711", without the end of the line.
std::string error_line(const Read_error& error);

// One line per error, written at once and flushed.
class File_error_sink final : public Error_sink {
 public:
  explicit File_error_sink(std::FILE* file) : file_(file) {}
  void read_failed(const Read_error& error) override;

 private:
  std::FILE* file_;
};

}  // namespace mxd
