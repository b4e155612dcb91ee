#include "storage/class_id_search.h"

#include <algorithm>
#include <cstring>

namespace mxd {
namespace {

constexpr std::uint64_t word_size = 8;
constexpr std::int64_t guid_size = 16;

std::uint64_t word_at(const std::uint8_t* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, word_size);
  return word;
}

// 16 bits that differ for most words: the upper end of a product by an odd constant.
std::size_t word_hash(std::uint64_t word) {
  return static_cast<std::size_t>((word * 0x9E3779B97F4A7C15U) >> 48);
}

}  // namespace

Class_id_filter::Class_id_filter(std::vector<Guid> class_ids)
    : class_ids_(std::move(class_ids)), bitmap_(std::size_t{1} << 13) {
  std::sort(class_ids_.begin(), class_ids_.end());
  class_ids_.erase(std::unique(class_ids_.begin(), class_ids_.end()), class_ids_.end());
  for (std::uint32_t index = 0; index < class_ids_.size(); ++index) {
    stored_ids_.push_back(guid_reordered(class_ids_[index]));
    for (std::uint32_t offset = 0; offset < word_size; ++offset) {
      const std::uint64_t value = word_at(stored_ids_.back().bytes.data() + offset);
      words_.push_back({value, offset, index});
      bitmap_[word_hash(value) / 8] |= static_cast<std::uint8_t>(1U << word_hash(value) % 8);
    }
  }
  std::sort(words_.begin(), words_.end(),
            [](const Word& a, const Word& b) { return a.value < b.value; });
}

bool Class_id_filter::stands_at(std::span<const std::uint8_t> bytes, std::uint64_t position,
                                std::uint32_t class_index) const {
  if (position > bytes.size() || bytes.size() - position < guid_size) return false;
  return std::memcmp(bytes.data() + position, stored_ids_[class_index].bytes.data(), guid_size) ==
         0;
}

std::vector<std::vector<std::int64_t>> Class_id_filter::positions(
    std::span<const std::uint8_t> bytes) const {
  std::vector<std::vector<std::int64_t>> result(class_ids_.size());
  const auto value_below = [](const Word& word, std::uint64_t value) { return word.value < value; };
  for (std::uint64_t i = 0; i + word_size <= bytes.size(); i += word_size) {
    const std::uint64_t value = word_at(bytes.data() + i);
    const std::size_t hash = word_hash(value);
    if ((bitmap_[hash / 8] >> hash % 8 & 1U) == 0) continue;
    auto word = std::lower_bound(words_.begin(), words_.end(), value, value_below);
    for (; word != words_.end() && word->value == value; ++word) {
      if (word->offset > i || !stands_at(bytes, i - word->offset, word->class_index)) continue;
      result[word->class_index].push_back(static_cast<std::int64_t>(i - word->offset));
    }
  }
  // Occurrences that overlap can share a word and so arrive out of order.
  for (auto& list : result) {
    if (!std::is_sorted(list.begin(), list.end())) std::sort(list.begin(), list.end());
  }
  return result;
}

// The positions that a search examines, and whether it would have gone on past the end.
struct Class_id_index::Stretch {
  std::int64_t first;
  std::int64_t last;
  bool ends_inside;
};

Class_id_index::Class_id_index(const Class_id_filter& filter, std::span<const std::uint8_t> bytes)
    : filter_(&filter),
      size_(static_cast<std::int64_t>(bytes.size())),
      positions_(filter.positions(bytes)) {}

Class_id_index::Stretch Class_id_index::stretch(std::int64_t start, std::int64_t limit) const {
  const std::int64_t last = (limit < 0 ? size_ : limit) - guid_size;
  const std::int64_t last_readable = size_ - guid_size;
  return {start, std::min(last, last_readable), last < start || last <= last_readable};
}

std::span<const std::int64_t> Class_id_index::positions_of(const Guid& class_id) const {
  const auto known = filter_->class_ids();
  const auto place = std::lower_bound(known.begin(), known.end(), class_id);
  if (place == known.end() || *place != class_id) return {};
  return positions_[static_cast<std::size_t>(place - known.begin())];
}

Class_id_scan Class_id_index::scan(std::span<const Guid> candidates, std::int64_t start,
                                   std::int64_t limit) const {
  const Stretch searched = stretch(start, limit);
  Class_id_scan result{searched.ends_inside, std::nullopt};
  for (const Guid& candidate : candidates) {
    const auto positions = positions_of(candidate);
    const auto next = std::lower_bound(positions.begin(), positions.end(), searched.first);
    if (next == positions.end() || *next > searched.last) continue;
    if (!result.hit || *next < result.hit->position) result.hit = Class_id_hit{*next, candidate};
  }
  if (result.hit) result.ok = true;
  return result;
}

Class_id_hits Class_id_index::find_all(std::span<const Guid> candidates, std::int64_t start,
                                       std::int64_t limit) const {
  const Stretch searched = stretch(start, limit);
  Class_id_hits result{searched.ends_inside, {}};
  for (const Guid& candidate : candidates) {
    const auto positions = positions_of(candidate);
    auto next = std::lower_bound(positions.begin(), positions.end(), searched.first);
    for (; next != positions.end() && *next <= searched.last; ++next) {
      result.hits.push_back({*next, candidate});
    }
  }
  const auto by_position = [](const auto& a, const auto& b) { return a.position < b.position; };
  std::stable_sort(result.hits.begin(), result.hits.end(), by_position);
  const auto same_position = [](const auto& a, const auto& b) { return a.position == b.position; };
  result.hits.erase(std::unique(result.hits.begin(), result.hits.end(), same_position),
                    result.hits.end());
  return result;
}

}  // namespace mxd
