#include "storage/class_id_search.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>
#include <numeric>

namespace mxd {
namespace {

constexpr std::int64_t guid_size = 16;
constexpr std::uint64_t word_size = 4;
// Wherever an id begins, it contains exactly one of the words that are this far apart.
constexpr std::uint64_t stride = guid_size - word_size + 1;
// Words that are looked up before the first branch.
constexpr unsigned words_at_once = 4;
// Large enough for few false positives, small enough for the L1 cache.
constexpr unsigned hash_bits = 14;
constexpr unsigned bucket_bits = 10;
// Ids are usually farther apart than this.
constexpr std::size_t usual_distance = 128;
// Occurrences that a search examines one by one before it turns to the positions of each candidate.
constexpr std::size_t max_linear_probes = 8;

std::uint32_t word_at(const std::uint8_t* bytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes, word_size);
  return word;
}

// Multiplicative hash: the upper bits of the product.
std::size_t word_hash(std::uint32_t word) {
  return (word * 0x9E3779B9U) >> (32 - hash_bits);
}

std::size_t bucket_of(std::uint32_t word) {
  return word_hash(word) >> (hash_bits - bucket_bits);
}

}  // namespace

Class_id_scanner::Class_id_scanner(std::vector<Guid> class_ids)
    : stored_ids_(std::move(class_ids)), known_hashes_(std::size_t{1} << hash_bits) {
  for (Guid& id : stored_ids_) id = swap_guid_byte_order(id);
  std::sort(stored_ids_.begin(), stored_ids_.end());
  stored_ids_.erase(std::unique(stored_ids_.begin(), stored_ids_.end()), stored_ids_.end());
  for (const Guid& stored : stored_ids_) class_ids_.push_back(swap_guid_byte_order(stored));
  add_words();
}

void Class_id_scanner::add_words() {
  for (std::uint32_t index = 0; index < stored_ids_.size(); ++index) {
    for (std::uint32_t offset = 0; offset < stride; ++offset) {
      words_.push_back({word_at(stored_ids_[index].bytes.data() + offset), offset, index});
    }
  }
  std::ranges::sort(words_, {}, [](const Word& word) { return bucket_of(word.value); });
  bucket_starts_.resize((std::size_t{1} << bucket_bits) + 1);
  for (const Word& word : words_) {
    known_hashes_[word_hash(word.value)] = 1;
    ++bucket_starts_[bucket_of(word.value) + 1];
  }
  std::partial_sum(bucket_starts_.begin(), bucket_starts_.end(), bucket_starts_.begin());
}

std::optional<std::uint32_t> Class_id_scanner::index_of(const Guid& class_id) const {
  const Guid stored = swap_guid_byte_order(class_id);
  const auto found = std::lower_bound(stored_ids_.begin(), stored_ids_.end(), stored);
  if (found == stored_ids_.end() || *found != stored) return std::nullopt;
  return static_cast<std::uint32_t>(found - stored_ids_.begin());
}

void Class_id_scanner::add_occurrences(std::span<const std::uint8_t> bytes,
                                       std::uint64_t word_position,
                                       std::vector<Occurrence>& occurrences) const {
  const std::uint32_t value = word_at(bytes.data() + word_position);
  const std::uint32_t* start = &bucket_starts_[bucket_of(value)];
  for (const Word& word : std::span(words_).subspan(start[0], start[1] - start[0])) {
    if (word.value != value || word.offset > word_position) continue;
    const std::uint64_t position = word_position - word.offset;
    if (bytes.size() - position < guid_size) continue;
    const Guid& stored = stored_ids_[word.class_index];
    if (std::memcmp(stored.bytes.data(), bytes.data() + position, guid_size) == 0) {
      occurrences.push_back({static_cast<std::int64_t>(position), word.class_index});
    }
  }
}

std::vector<Class_id_scanner::Occurrence> Class_id_scanner::find_all(
    std::span<const std::uint8_t> bytes) const {
  std::vector<Occurrence> result;
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
      add_occurrences(bytes, i + k * stride, result);
    }
  }
  for (; i + word_size <= bytes.size(); i += stride) add_occurrences(bytes, i, result);
  // Overlapping occurrences can share a word and then arrive out of order.
  if (!std::ranges::is_sorted(result, {}, &Occurrence::position)) {
    std::ranges::sort(result, {}, &Occurrence::position);
  }
  return result;
}

Class_id_index::Class_id_index(const Class_id_scanner& scanner, std::span<const std::uint8_t> bytes)
    : scanner_(&scanner),
      size_(static_cast<std::int64_t>(bytes.size())),
      occurrences_(scanner.find_all(bytes)),
      positions_(occurrences_.size()),
      class_starts_(scanner.class_ids().size() + 1) {
  for (const auto& occurrence : occurrences_) ++class_starts_[occurrence.class_index + 1];
  std::partial_sum(class_starts_.begin(), class_starts_.end(), class_starts_.begin());
  std::vector<std::size_t> next = class_starts_;
  for (const auto& occurrence : occurrences_) {
    positions_[next[occurrence.class_index]++] = occurrence.position;
  }
}

// The positions to examine, all of them in the stream.
struct Class_id_index::Search_range {
  std::int64_t first;
  std::int64_t last;
  bool within_stream;  // whether the search would end before the end of the stream
};

Class_id_index::Search_range Class_id_index::search_range(std::int64_t start,
                                                          std::int64_t limit) const {
  assert(start >= 0);
  const std::int64_t last = (limit < 0 ? size_ : limit) - guid_size;
  const std::int64_t last_readable = size_ - guid_size;
  return {start, std::min(last, last_readable), last < start || last <= last_readable};
}

std::span<const std::int64_t> Class_id_index::positions_in(const Search_range& range,
                                                           const Guid& class_id) const {
  const auto index = scanner_->index_of(class_id);
  if (!index) return {};
  const auto positions =
      std::span(positions_)
          .subspan(class_starts_[*index], class_starts_[*index + 1] - class_starts_[*index]);
  const auto first = std::ranges::lower_bound(positions, range.first);
  return {first, std::upper_bound(first, positions.end(), range.last)};
}

std::optional<Class_id_match> Class_id_index::first_match(std::span<const Guid> candidates,
                                                          const Search_range& range) const {
  using Occurrence = Class_id_scanner::Occurrence;
  auto next = std::ranges::lower_bound(occurrences_, range.first, {}, &Occurrence::position);
  for (std::size_t i = 0; i < max_linear_probes; ++i, ++next) {
    if (next == occurrences_.end() || next->position > range.last) return std::nullopt;
    const Guid& found = scanner_->class_ids()[next->class_index];
    if (std::ranges::find(candidates, found) != candidates.end()) {
      return Class_id_match{next->position, found};
    }
  }
  std::optional<Class_id_match> first;
  for (const Guid& candidate : candidates) {
    const auto positions = positions_in(range, candidate);
    if (positions.empty()) continue;
    if (!first || positions.front() < first->position) {
      first = Class_id_match{positions.front(), candidate};
    }
  }
  return first;
}

Scan_result Class_id_index::scan(std::span<const Guid> candidates, std::int64_t start,
                                 std::int64_t limit) const {
  const Search_range range = search_range(start, limit);
  const auto match = first_match(candidates, range);
  return {match || range.within_stream, match};
}

Find_all_result Class_id_index::find_all(std::span<const Guid> candidates, std::int64_t start,
                                         std::int64_t limit) const {
  const Search_range range = search_range(start, limit);
  Find_all_result result{range.within_stream, {}};
  for (const Guid& candidate : candidates) {
    for (const std::int64_t position : positions_in(range, candidate)) {
      result.hits.push_back({position, candidate});
    }
  }
  // A candidate may be listed twice.
  std::ranges::sort(result.hits, {}, &Class_id_match::position);
  result.hits.erase(std::unique(result.hits.begin(), result.hits.end()), result.hits.end());
  return result;
}

}  // namespace mxd
