// Class-id search: finds the ids of known classes in a stream, at any byte offset.
//
// Objects are found by class id, many times per load over the same bytes. One pass therefore
// collects the positions of all known ids, and each search is answered from that index: usually
// from the next few positions, otherwise from the positions of each candidate.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "storage/guid.h"

namespace mxd {

struct Class_id_match {
  std::int64_t position = 0;
  Guid class_id;

  bool operator==(const Class_id_match&) const = default;
};

// A search fails if it would have to read past the end. Finding nothing is no failure.
struct Scan_result {
  bool ok = false;
  std::optional<Class_id_match> hit;
};

struct Find_all_result {
  bool ok = false;
  std::vector<Class_id_match> hits;
};

// Finds the ids of one set. Made once and used for every stream.
class Class_id_scanner {
 public:
  struct Occurrence {
    std::int64_t position;
    std::uint32_t class_index;  // in class_ids()
  };

  explicit Class_id_scanner(std::vector<Guid> class_ids);

  // Each id once, in the order of their stored bytes.
  std::span<const Guid> class_ids() const { return class_ids_; }
  std::optional<std::uint32_t> index_of(const Guid& class_id) const;

  // All occurrences of all ids, by ascending position.
  std::vector<Occurrence> find_all(std::span<const std::uint8_t> bytes) const;

 private:
  // The pass samples one word every 13 bytes, so that each id contains exactly one sample: this
  // word, at this offset in the id of this index.
  struct Word {
    std::uint32_t value;
    std::uint32_t offset;
    std::uint32_t class_index;
  };

  void add_words();
  void add_occurrences(std::span<const std::uint8_t> bytes, std::uint64_t word_position,
                       std::vector<Occurrence>& occurrences) const;

  std::vector<Guid> stored_ids_;  // sorted; the byte order of streams
  std::vector<Guid> class_ids_;
  // Sorted by bucket: bucket b has [bucket_starts_[b], bucket_starts_[b + 1]).
  std::vector<Word> words_;
  std::vector<std::uint32_t> bucket_starts_;
  std::vector<std::uint8_t> known_hashes_;
};

class Class_id_index {
 public:
  // The scanner must outlive the index. The bytes are not used after construction.
  Class_id_index(const Class_id_scanner& scanner, std::span<const std::uint8_t> bytes);

  // Search positions start ... limit - 16; a negative limit means the size of the stream.
  // The start must not be negative. scan() returns the first match.
  [[nodiscard]] Scan_result scan(std::span<const Guid> candidates, std::int64_t start,
                                 std::int64_t limit) const;
  [[nodiscard]] Find_all_result find_all(std::span<const Guid> candidates, std::int64_t start,
                                         std::int64_t limit) const;

 private:
  struct Search_range;
  Search_range search_range(std::int64_t start, std::int64_t limit) const;
  std::optional<Class_id_match> first_match(std::span<const Guid> candidates,
                                            const Search_range& range) const;
  std::span<const std::int64_t> positions_in(const Search_range& range, const Guid& class_id) const;

  const Class_id_scanner* scanner_;
  std::int64_t size_;
  std::vector<Class_id_scanner::Occurrence> occurrences_;
  // The same positions grouped by class: class c has [class_starts_[c], class_starts_[c + 1]).
  std::vector<std::int64_t> positions_;
  std::vector<std::size_t> class_starts_;
};

}  // namespace mxd
