// Bounds what one load may decode and copy.
#pragma once

#include <cstdint>

namespace mxd {

// A few hundred bytes of back-references to back-references unfold into gigabytes. Honest documents
// stay far below this; past it every read fails, and goes on failing.
class Load_budget {
 public:
  explicit Load_budget(std::uint64_t stream_size)
      : limit_((std::uint64_t{4} << 20) + 16 * stream_size) {}

  bool allows(std::uint64_t bytes) const { return !exhausted_ && bytes <= limit_ - used_; }

  bool spend(std::uint64_t bytes) {
    if (!allows(bytes)) {
      exhausted_ = true;
      return false;
    }
    used_ += bytes;
    return true;
  }

  std::uint64_t used() const { return used_; }
  std::uint64_t limit() const { return limit_; }
  bool exhausted() const { return exhausted_; }

 private:
  std::uint64_t limit_;
  std::uint64_t used_ = 0;
  bool exhausted_ = false;
};

}  // namespace mxd
