// Class-id search without an index, to compare the index with.
#pragma once

#include <algorithm>
#include <span>

#include "storage/class_id_search.h"
#include "storage/ieee_stream.h"
#include "storage/memory_stream.h"

namespace mxd::test {

// Reads an id at every position.
class Naive_search final : public Tmxd_ieee_stream {
 public:
  explicit Naive_search(std::span<const std::uint8_t> bytes) {
    static_cast<void>(memory_.write(bytes.data(), 1, bytes.size()));
  }

  Find_all_result find_all(std::span<const Guid> candidates, std::int64_t start, std::int64_t limit,
                           bool only_first = false) {
    const std::int64_t size = static_cast<std::int64_t>(get_size());
    const std::int64_t last = (limit < 0 ? size : limit) - 16;
    Find_all_result result{true, {}};
    for (std::int64_t position = start; position <= last; ++position) {
      Guid found;
      if (!seek(static_cast<std::uint64_t>(position)) || !read_guid(*this, found)) {
        return {false, result.hits};
      }
      if (std::find(candidates.begin(), candidates.end(), found) == candidates.end()) continue;
      result.hits.push_back({position, found});
      if (only_first) break;
    }
    return result;
  }

  bool set_size(std::uint64_t new_size) override { return memory_.set_size(new_size); }
  std::uint64_t get_size() override { return memory_.get_size(); }
  bool seek(std::uint64_t position) override { return memory_.seek(position); }
  std::uint64_t tell() override { return memory_.tell(); }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return memory_.read(buffer, element_size, count);
  }
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return memory_.write(buffer, element_size, count);
  }

 private:
  Tmxd_stream_m memory_;
};

// Whether the index finds the same matches, and the same first match.
inline bool agree(Naive_search& naive, const Class_id_index& index,
                  std::span<const Guid> candidates, std::int64_t start, std::int64_t limit) {
  const Find_all_result wanted = naive.find_all(candidates, start, limit);
  const Find_all_result all = index.find_all(candidates, start, limit);
  const Find_all_result wanted_first = naive.find_all(candidates, start, limit, true);
  const Scan_result first = index.scan(candidates, start, limit);
  return wanted.ok == all.ok && wanted.hits == all.hits && wanted_first.ok == first.ok &&
         wanted_first.hits.empty() == !first.hit &&
         (!first.hit || wanted_first.hits.front() == *first.hit);
}

}  // namespace mxd::test
