// Class-id search: where in a stream the ids of known classes stand, at any byte offset.
//
// Objects are found by searching, many times a load and over the same bytes. So one pass collects
// the places of all known ids, and every search is answered from these.
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
struct Class_id_scan {
  bool ok = false;
  std::optional<Class_id_hit> hit;
};

struct Class_id_hits {
  bool ok = false;
  std::vector<Class_id_hit> hits;
};

// What one pass needs to know about a set of ids; made once, used for every stream.
class Class_id_filter {
 public:
  explicit Class_id_filter(std::vector<Guid> class_ids);

  std::span<const Guid> class_ids() const { return class_ids_; }

  // The ids' positions, ascending: one list per id, in the order of class_ids().
  std::vector<std::vector<std::int64_t>> positions(std::span<const std::uint8_t> bytes) const;

 private:
  // An id covers one whole 8-byte word of the stream's grid first, at one of eight offsets.
  struct Word {
    std::uint64_t value;
    std::uint32_t offset;
    std::uint32_t class_index;
  };

  bool stands_at(std::span<const std::uint8_t> bytes, std::uint64_t position,
                 std::uint32_t class_index) const;

  std::vector<Guid> class_ids_;
  std::vector<Guid> stored_ids_;
  std::vector<Word> words_;
  std::vector<std::uint8_t> bitmap_;
};

class Class_id_index {
 public:
  // The filter must outlive the index; the bytes are read here only.
  Class_id_index(const Class_id_filter& filter, std::span<const std::uint8_t> bytes);

  // Positions start ... limit - 16 are searched; a negative limit is the stream's size. Where two
  // candidates are the same id, the earlier one counts.
  Class_id_scan scan(std::span<const Guid> candidates, std::int64_t start,
                     std::int64_t limit) const;
  Class_id_hits find_all(std::span<const Guid> candidates, std::int64_t start,
                         std::int64_t limit) const;

 private:
  struct Stretch;
  Stretch stretch(std::int64_t start, std::int64_t limit) const;
  std::span<const std::int64_t> positions_of(const Guid& class_id) const;

  const Class_id_filter* filter_;
  std::int64_t size_;
  std::vector<std::vector<std::int64_t>> positions_;
};

}  // namespace mxd
