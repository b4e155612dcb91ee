// Class-id search: where in a stream the ids of known classes stand, at any byte offset.
//
// Objects are found by searching, many times a load and over the same bytes. So one pass collects
// the places of all known ids, and every search is answered from these: from the next few places,
// where most searches end, or else from the places of each candidate.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "storage/guid.h"

namespace mxd {

struct Class_id_hit {
  std::int64_t position = 0;
  Guid class_id;

  bool operator==(const Class_id_hit&) const = default;
};

// A search fails when it would look at bytes past the end; finding nothing is no failure.
struct Scan_result {
  bool ok = false;
  std::optional<Class_id_hit> hit;
};

struct Find_all_result {
  bool ok = false;
  std::vector<Class_id_hit> hits;
};

// Where an id of a filter stands.
struct Class_id_place {
  std::int64_t position;
  std::uint32_t class_index;
};

// A set of ids, each with an index.
class Class_id_table {
 public:
  explicit Class_id_table(std::vector<Guid> class_ids);

  // Ascending, each once.
  std::span<const Guid> class_ids() const { return class_ids_; }
  // Of an id as streams store it.
  std::optional<std::uint32_t> index_of_stored(const Guid& stored) const;

 private:
  static constexpr std::uint32_t empty_slot = 0xFFFFFFFF;
  std::size_t slot_of(const Guid& stored) const;

  std::vector<Guid> class_ids_;
  std::vector<Guid> stored_ids_;
  std::vector<std::uint32_t> slots_;
};

// What one pass needs to know about a set of ids; made once, used for every stream.
class Class_id_scanner {
 public:
  explicit Class_id_scanner(std::vector<Guid> class_ids);

  const Class_id_table& table() const { return table_; }

  // All places of all ids, ascending.
  std::vector<Class_id_place> places(std::span<const std::uint8_t> bytes) const;

 private:
  // The pass looks at words that lie as far apart as it takes to meet every id once: with this
  // word, at this offset inside the id.
  struct Word {
    std::uint32_t value;
    std::uint32_t offset;

    bool operator==(const Word&) const = default;
  };

  void add_places(std::span<const std::uint8_t> bytes, std::uint64_t word_position,
                  std::vector<Class_id_place>& places) const;
  std::optional<std::uint32_t> class_at(std::span<const std::uint8_t> bytes,
                                        std::uint64_t position) const;

  Class_id_table table_;
  // In the order of their buckets, each of which begins here.
  std::vector<Word> words_;
  std::vector<std::size_t> buckets_;
  std::vector<std::uint8_t> known_hashes_;
};

class Class_id_index {
 public:
  // The filter must outlive the index; the bytes are read here only.
  Class_id_index(const Class_id_scanner& filter, std::span<const std::uint8_t> bytes);

  // Positions start ... limit - 16 are searched; a negative limit is the stream's size. Where two
  // candidates are the same id, the earlier one counts.
  Scan_result scan(std::span<const Guid> candidates, std::int64_t start, std::int64_t limit) const;
  Find_all_result find_all(std::span<const Guid> candidates, std::int64_t start,
                           std::int64_t limit) const;

 private:
  struct Stretch;
  Stretch stretch(std::int64_t start, std::int64_t limit) const;
  std::vector<Class_id_place>::const_iterator place_from(std::int64_t position) const;
  std::optional<Class_id_hit> first_hit(std::span<const Guid> candidates,
                                        const Stretch& searched) const;
  std::span<const std::int64_t> positions_of(const Guid& class_id) const;

  const Class_id_scanner* filter_;
  std::int64_t size_;
  std::vector<Class_id_place> places_;
  // Of each block of 2^block_bits_ bytes, which place is its first, or the next one behind it. In
  // large streams a binary search from the ends would leave the caches at every step.
  unsigned block_bits_ = 0;
  std::vector<std::size_t> block_starts_;
  // The positions once more, class by class: those of class c end where those of c + 1 begin.
  std::vector<std::int64_t> positions_;
  std::vector<std::size_t> class_starts_;
};

}  // namespace mxd
