// Class-id search without an index, to compare the index with.
#pragma once

#include <algorithm>
#include <optional>
#include <span>

#include "storage/class_id_search.h"

namespace mxd::test {

// Compares the id at every position.
inline Find_all_result naive_search(std::span<const std::uint8_t> bytes,
                                    std::span<const Guid> candidates, std::int64_t start,
                                    std::int64_t limit) {
  const auto size = static_cast<std::int64_t>(bytes.size());
  Find_all_result result{true, {}};
  for (std::int64_t position = start; position <= (limit < 0 ? size : limit) - 16; ++position) {
    if (position + 16 > size) return {false, result.hits};
    Guid stored;
    std::copy_n(bytes.begin() + position, 16, stored.bytes.begin());
    const Guid id = swap_guid_byte_order(stored);
    if (std::ranges::count(candidates, id) != 0) result.hits.push_back({position, id});
  }
  return result;
}

// Whether the index finds the same matches, and the same first match.
inline bool agree(std::span<const std::uint8_t> bytes, const Class_id_index& index,
                  std::span<const Guid> candidates, std::int64_t start, std::int64_t limit) {
  const auto [ok, hits] = naive_search(bytes, candidates, start, limit);
  const Find_all_result all = index.find_all(candidates, start, limit);
  const Scan_result first = index.scan(candidates, start, limit);
  return all.ok == ok && all.hits == hits && first.ok == (ok || !hits.empty()) &&
         first.hit == (hits.empty() ? std::nullopt : std::optional(hits.front()));
}

}  // namespace mxd::test
