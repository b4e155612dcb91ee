#include "storage/class_id_search.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <tuple>

namespace mxd {
namespace {

constexpr std::int64_t guid_size = 16;
constexpr std::uint64_t word_size = 4;
// An id covers exactly one of the words that lie this far apart, wherever it begins.
constexpr std::uint64_t stride = guid_size - word_size + 1;
// Words that are looked up before the first branch.
constexpr unsigned words_at_once = 4;
// Few words of others have a known hash, and the table still fits into the nearest cache.
constexpr unsigned hash_bits = 14;
constexpr unsigned bucket_bits = 10;
// More bytes lie between two ids, as a rule.
constexpr std::size_t usual_distance = 128;
// Places that a search looks at one after another before it turns to each candidate's own.
constexpr std::size_t near_places = 8;

std::uint32_t word_at(const std::uint8_t* bytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes, word_size);
  return word;
}

// Bits that differ for most words: the upper end of a product by an odd constant.
std::size_t word_hash(std::uint32_t word) {
  return (word * 0x9E3779B9U) >> (32 - hash_bits);
}

std::size_t bucket_of(std::uint32_t word) {
  return word_hash(word) >> (hash_bits - bucket_bits);
}

}  // namespace

Class_id_table::Class_id_table(std::vector<Guid> class_ids) : class_ids_(std::move(class_ids)) {
  std::sort(class_ids_.begin(), class_ids_.end());
  class_ids_.erase(std::unique(class_ids_.begin(), class_ids_.end()), class_ids_.end());
  slots_.resize(std::bit_ceil(4 * class_ids_.size() + 1), empty_slot);
  for (std::uint32_t index = 0; index < class_ids_.size(); ++index) {
    stored_ids_.push_back(swap_guid_byte_order(class_ids_[index]));
    slots_[slot_of(stored_ids_[index])] = index;
  }
}

// Where the id stands, or else the free slot where it would.
std::size_t Class_id_table::slot_of(const Guid& stored) const {
  const auto words = std::bit_cast<std::array<std::uint64_t, 2>>(stored.bytes);
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = ((words[0] ^ words[1]) * 0x9E3779B97F4A7C15U >> 32) & mask;
  while (slots_[slot] != empty_slot && stored_ids_[slots_[slot]] != stored)
    slot = (slot + 1) & mask;
  return slot;
}

std::optional<std::uint32_t> Class_id_table::index_of_stored(const Guid& stored) const {
  const std::uint32_t index = slots_[slot_of(stored)];
  if (index == empty_slot) return std::nullopt;
  return index;
}

Class_id_scanner::Class_id_scanner(std::vector<Guid> class_ids)
    : table_(std::move(class_ids)), known_hashes_(std::size_t{1} << hash_bits) {
  for (const Guid& class_id : table_.class_ids()) {
    const Guid stored = swap_guid_byte_order(class_id);
    for (std::uint32_t offset = 0; offset < stride; ++offset) {
      words_.push_back({word_at(stored.bytes.data() + offset), offset});
    }
  }
  const auto order = [](const Word& word) {
    return std::tuple(bucket_of(word.value), word.value, word.offset);
  };
  std::sort(words_.begin(), words_.end(),
            [order](const Word& a, const Word& b) { return order(a) < order(b); });
  words_.erase(std::unique(words_.begin(), words_.end()), words_.end());
  buckets_.resize(std::size_t{1} << bucket_bits, words_.size());
  for (std::size_t i = words_.size(); i-- != 0;) {
    known_hashes_[word_hash(words_[i].value)] = 1;
    buckets_[bucket_of(words_[i].value)] = i;
  }
}

std::optional<std::uint32_t> Class_id_scanner::class_at(std::span<const std::uint8_t> bytes,
                                                        std::uint64_t position) const {
  if (position > bytes.size() || bytes.size() - position < guid_size) return std::nullopt;
  Guid stored;
  std::memcpy(stored.bytes.data(), bytes.data() + position, guid_size);
  return table_.index_of_stored(stored);
}

void Class_id_scanner::add_places(std::span<const std::uint8_t> bytes, std::uint64_t word_position,
                                  std::vector<Class_id_place>& places) const {
  const std::uint32_t value = word_at(bytes.data() + word_position);
  const std::size_t bucket = bucket_of(value);
  for (std::size_t i = buckets_[bucket]; i < words_.size(); ++i) {
    if (bucket_of(words_[i].value) != bucket) break;
    const std::uint32_t offset = words_[i].offset;
    if (words_[i].value != value || offset > word_position) continue;
    const auto class_index = class_at(bytes, word_position - offset);
    if (!class_index) continue;
    places.push_back({static_cast<std::int64_t>(word_position - offset), *class_index});
  }
}

std::vector<Class_id_place> Class_id_scanner::places(std::span<const std::uint8_t> bytes) const {
  std::vector<Class_id_place> result;
  result.reserve(bytes.size() / usual_distance);
  const auto hash_at = [bytes](std::uint64_t i) { return word_hash(word_at(bytes.data() + i)); };
  std::uint64_t i = 0;
  for (; i + words_at_once * stride <= bytes.size(); i += words_at_once * stride) {
    unsigned known = 0;
    for (unsigned k = 0; k < words_at_once; ++k) {
      known |= unsigned{known_hashes_[hash_at(i + k * stride)]} << k;
    }
    for (; known != 0; known &= known - 1) {
      const auto k = static_cast<std::uint64_t>(std::countr_zero(known));
      add_places(bytes, i + k * stride, result);
    }
  }
  for (; i + word_size <= bytes.size(); i += stride) add_places(bytes, i, result);
  // Occurrences that overlap can share a word and so arrive out of order.
  const auto by_position = [](const auto& a, const auto& b) { return a.position < b.position; };
  if (!std::is_sorted(result.begin(), result.end(), by_position)) {
    std::sort(result.begin(), result.end(), by_position);
  }
  return result;
}

// The positions that a search examines, and whether it would have gone on past the end.
struct Class_id_index::Stretch {
  std::int64_t first;
  std::int64_t last;
  bool ends_inside;
};

Class_id_index::Class_id_index(const Class_id_scanner& filter, std::span<const std::uint8_t> bytes)
    : filter_(&filter),
      size_(static_cast<std::int64_t>(bytes.size())),
      places_(filter.places(bytes)),
      positions_(places_.size()),
      class_starts_(filter.table().class_ids().size() + 1) {
  for (const Class_id_place& place : places_) ++class_starts_[place.class_index + 1];
  std::partial_sum(class_starts_.begin(), class_starts_.end(), class_starts_.begin());
  std::vector<std::size_t> next = class_starts_;
  for (const Class_id_place& place : places_) {
    positions_[next[place.class_index]++] = place.position;
  }
  block_bits_ = static_cast<unsigned>(std::bit_width(bytes.size() / (places_.size() + 1)));
  for (std::size_t place = 0; place < places_.size(); ++place) {
    const auto position = static_cast<std::uint64_t>(places_[place].position);
    block_starts_.resize((position >> block_bits_) + 1, place);
  }
  block_starts_.push_back(places_.size());
}

// The first place that is not before the position.
std::vector<Class_id_place>::const_iterator Class_id_index::place_from(
    std::int64_t position) const {
  const std::uint64_t block = static_cast<std::uint64_t>(position) >> block_bits_;
  if (block + 1 >= block_starts_.size()) return places_.end();
  const auto at = [this](std::size_t i) {
    return places_.begin() + static_cast<std::ptrdiff_t>(i);
  };
  return std::lower_bound(
      at(block_starts_[block]), at(block_starts_[block + 1]), position,
      [](const Class_id_place& place, std::int64_t wanted) { return place.position < wanted; });
}

Class_id_index::Stretch Class_id_index::stretch(std::int64_t start, std::int64_t limit) const {
  const std::int64_t last = (limit < 0 ? size_ : limit) - guid_size;
  const std::int64_t last_readable = size_ - guid_size;
  return {start, std::min(last, last_readable), last < start || last <= last_readable};
}

std::span<const std::int64_t> Class_id_index::positions_of(const Guid& class_id) const {
  const auto index = filter_->table().index_of_stored(swap_guid_byte_order(class_id));
  if (!index) return {};
  return std::span(positions_)
      .subspan(class_starts_[*index], class_starts_[*index + 1] - class_starts_[*index]);
}

std::optional<Class_id_hit> Class_id_index::first_hit(std::span<const Guid> candidates,
                                                      const Stretch& searched) const {
  auto place = place_from(searched.first);
  for (std::size_t i = 0; i < near_places; ++i, ++place) {
    if (place == places_.end() || place->position > searched.last) return std::nullopt;
    const Guid& found = filter_->table().class_ids()[place->class_index];
    if (std::find(candidates.begin(), candidates.end(), found) != candidates.end()) {
      return Class_id_hit{place->position, found};
    }
  }
  std::optional<Class_id_hit> first;
  for (const Guid& candidate : candidates) {
    const auto positions = positions_of(candidate);
    const auto next = std::lower_bound(positions.begin(), positions.end(), searched.first);
    if (next == positions.end() || *next > searched.last) continue;
    if (!first || *next < first->position) first = Class_id_hit{*next, candidate};
  }
  return first;
}

Scan_result Class_id_index::scan(std::span<const Guid> candidates, std::int64_t start,
                                 std::int64_t limit) const {
  const Stretch searched = stretch(start, limit);
  const auto hit = first_hit(candidates, searched);
  return {hit || searched.ends_inside, hit};
}

Find_all_result Class_id_index::find_all(std::span<const Guid> candidates, std::int64_t start,
                                         std::int64_t limit) const {
  const Stretch searched = stretch(start, limit);
  Find_all_result result{searched.ends_inside, {}};
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
