// The messages of a run on standard error.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// Writes to standard error. A failure there is ignored.
void print_stderr(std::string_view text);

class Progress {
 public:
  // Only with `shown` is there a line that counts the documents.
  Progress(std::size_t total, bool shown) : total_(total), shown_(shown) {}

  void count(const Totals& totals);
  // Prints whole lines in place of the counting line.
  void print(const std::string& lines);
  void print_line(const std::string& line) { print(line + "\n"); }
  // The summary.
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
