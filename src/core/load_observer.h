// Receives the events of a load: the object reads that failed, and the work done.
#pragma once

#include <cstddef>
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

class Load_observer {
 public:
  Load_observer() = default;
  Load_observer(const Load_observer&) = delete;
  Load_observer& operator=(const Load_observer&) = delete;
  virtual ~Load_observer() = default;

  virtual void read_failed(const Read_error& error) = 0;
  // An object's class id was found where the object was expected.
  virtual void object_started() {}
  // A search looked up this many class ids and positions.
  virtual void searched(std::size_t /*steps*/) {}
};

// "ERROR IN 12 mxd_feature_layer  4711", without a line end.
std::string error_line(const Read_error& error);

// Writes one line per error and flushes it.
class File_error_reporter final : public Load_observer {
 public:
  explicit File_error_reporter(std::FILE* file) : file_(file) {}
  void read_failed(const Read_error& error) override;

 private:
  std::FILE* file_;
};

}  // namespace mxd
