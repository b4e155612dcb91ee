// What a batch tells on standard error while it runs and when it ends.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// To standard error, as it is. That it cannot be written is no failure.
void print_stderr(std::string_view text);

class Progress {
 public:
  // Without `shown` there is no line that counts the documents.
  Progress(std::size_t total, bool shown) : total_(total), shown_(shown) {}

  void count(const Totals& totals);
  // A whole line, where the counting was.
  void print_line(const std::string& line);
  void end(const Totals& totals);

 private:
  using Clock = std::chrono::steady_clock;

  double seconds() const;
  void erase();

  std::size_t total_;
  bool shown_;
  std::size_t width_ = 0;
  Clock::time_point start_ = Clock::now();
  Clock::time_point last_ = start_;
};

}  // namespace mxdinfo
