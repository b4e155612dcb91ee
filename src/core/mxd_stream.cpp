#include "core/mxd_stream.h"

#include <algorithm>

namespace mxd {

Tmxd_mxd_stream::Tmxd_mxd_stream(Tmxd_stream_m& inner, const Class_id_scanner& known_ids,
                                 Error_sink& errors)
    : inner_(inner), index_(known_ids, inner.bytes()), errors_(errors), budget_(inner.get_size()) {}

std::int64_t Tmxd_mxd_stream::search_start(std::int64_t start) {
  return start < 0 ? static_cast<std::int64_t>(tell()) : start;
}

Scan_result Tmxd_mxd_stream::scan(std::span<const Guid> candidates, std::int64_t start,
                                  std::int64_t limit) {
  const std::int64_t from = search_start(start);
  Scan_result result = index_.scan(candidates, from, limit);
  counts_.search_steps += candidates.size();
  if (!result.hit) seek(static_cast<std::uint64_t>(from));
  return result;
}

Find_all_result Tmxd_mxd_stream::find_all(std::span<const Guid> candidates, std::int64_t start,
                                          std::int64_t limit) {
  const std::int64_t from = search_start(start);
  Find_all_result result = index_.find_all(candidates, from, limit);
  counts_.search_steps += candidates.size() + result.hits.size();
  if (result.hits.empty()) seek(static_cast<std::uint64_t>(from));
  return result;
}

void Tmxd_mxd_stream::keep_until_load_ends(std::unique_ptr<Tmxd_obj> dropped) {
  if (dropped) dropped_.push_back(std::move(dropped));
}

void Tmxd_mxd_stream::register_object(const Tmxd_obj& object, std::uint64_t cost, int levels) {
  registry_.add(object.number, {&object, cost, levels});
}

void Tmxd_mxd_stream::add_copy_cost(const Tmxd_obj& object, std::uint64_t bytes) {
  Registered_object* entry = registry_.find(object.number);
  if (entry && entry->object == &object) entry->cost += bytes;
}

Nesting_scope::Nesting_scope(Tmxd_mxd_stream& stream)
    : stream_(stream), used_before_(stream.budget().used()), levels_beside_(stream.levels_below_) {
  ++stream_.level_;
  ++stream_.counts_.objects;
  stream_.levels_below_ = 0;
}

Nesting_scope::~Nesting_scope() {
  stream_.levels_below_ = std::max(levels_beside_, levels());
  --stream_.level_;
}

void Nesting_scope::count_levels(int levels) {
  stream_.levels_below_ = std::max(stream_.levels_below_, levels - 1);
}

}  // namespace mxd
