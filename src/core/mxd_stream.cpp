#include "core/mxd_stream.h"

namespace mxd {

Tmxd_mxd_stream::Tmxd_mxd_stream(Tmxd_stream_m& inner, const Class_id_scanner& known_ids,
                                 Load& load)
    : inner_(inner), index_(known_ids, inner.bytes()), load_(load) {}

Scan_result Tmxd_mxd_stream::scan(std::span<const Guid> candidates, std::int64_t start,
                                  std::int64_t limit) {
  const std::int64_t from = start < 0 ? position() : start;
  Scan_result result = index_.scan(candidates, from, limit);
  load_.count_search(candidates.size());
  if (!result.hit) static_cast<void>(seek(static_cast<std::uint64_t>(from)));
  return result;
}

Find_all_result Tmxd_mxd_stream::find_all(std::span<const Guid> candidates, std::int64_t start,
                                          std::int64_t limit) {
  const std::int64_t from = start < 0 ? position() : start;
  Find_all_result result = index_.find_all(candidates, from, limit);
  load_.count_search(candidates.size() + result.hits.size());
  if (result.hits.empty()) static_cast<void>(seek(static_cast<std::uint64_t>(from)));
  return result;
}

}  // namespace mxd
