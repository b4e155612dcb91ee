// The bound on what is written about a document.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// Documents may repeat long names and large symbols by references of a few bytes, so the output of
// a damaged one could be any size. Real documents stay far below this bound.
inline std::size_t max_output_size(std::uint64_t bytes_read) {
  constexpr std::size_t base = std::size_t{1} << 20;
  constexpr std::size_t per_byte = 16;
  return base + per_byte * static_cast<std::size_t>(bytes_read);
}
inline std::size_t max_output_size(const Report& report) {
  return max_output_size(report.bytes_read);
}

// Text up to a maximum size.
class Bounded_text {
 public:
  // Kept free for append_end().
  static constexpr std::size_t end_room = 4096;

  explicit Bounded_text(std::size_t max_size)
      : max_size_(max_size - std::min(max_size, end_room)) {}

  // Appends all of the text. False, now and in all later calls, if it does not fit.
  bool append(std::string_view text) {
    if (text_.size() > max_size_ || text.size() > max_size_ - text_.size()) is_full_ = true;
    if (!is_full_) text_.append(text);
    return !is_full_;
  }
  // Text that must follow what was appended before, such as end tags. It always fits, and comes to
  // at most end_room after the last append().
  void append_end(std::string_view text) { text_.append(text); }

  // Something did not fit.
  bool is_full() const { return is_full_; }
  std::size_t size() const { return text_.size(); }
  std::string take() { return std::move(text_); }

 private:
  std::size_t max_size_;
  bool is_full_ = false;
  std::string text_;
};

}  // namespace mxdinfo
