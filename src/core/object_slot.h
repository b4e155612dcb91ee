// A slot: an optional nested object of one family, owned, found by a search.
#pragma once

#include <memory>

#include "core/mxd_stream.h"
#include "core/object_family.h"

namespace mxd {

// The part of a slot that does not depend on the class held.
class Object_slot {
 public:
  Object_slot() = default;
  Object_slot(const Object_slot&) = delete;
  Object_slot& operator=(const Object_slot&) = delete;

 protected:
  ~Object_slot() = default;

  [[nodiscard]] bool read_member_of(const Object_family& family, Tmxd_mxd_stream& stream,
                                    std::int64_t start, std::int64_t limit);
  [[nodiscard]] bool read_unless_null(const Object_family& family, Tmxd_mxd_stream& stream,
                                      std::int64_t limit);
  bool clone_member_of(const Object_family& family, const Object_slot& source);

  std::unique_ptr<Tmxd_obj> object_;
};

// Held is the base class of the family Held::family(). Held::empty_key is the dump's key of an
// empty slot. Copying a slot clones the object.
template <class Held>
class Tmxd_slot final : public Object_slot {
 public:
  Tmxd_slot() = default;
  Tmxd_slot(const Tmxd_slot& source) { static_cast<void>(clone_from(source)); }
  Tmxd_slot& operator=(const Tmxd_slot& source) {
    if (this != &source) static_cast<void>(clone_from(source));
    return *this;
  }
  ~Tmxd_slot() = default;

  static constexpr std::string_view empty_key() { return Held::empty_key; }

  // Searches from the start (negative: the current position) to the limit. Returns true with an
  // empty slot if nothing is found. An object whose read fails stays in the slot.
  [[nodiscard]] bool read(Tmxd_mxd_stream& stream, std::int64_t start, std::int64_t limit) {
    return read_member_of(Held::family(), stream, start, limit);
  }
  [[nodiscard]] bool read(Tmxd_mxd_stream& stream, std::int64_t limit) {
    return read(stream, -1, limit);
  }
  // Like read(), but sixteen zero bytes in place of the object leave the slot empty.
  [[nodiscard]] bool read_or_null(Tmxd_mxd_stream& stream, std::int64_t limit) {
    return read_unless_null(Held::family(), stream, limit);
  }

  // Replaces the content by a clone of the source's. Returns the clone's copy_from() result, or
  // false if the source is empty.
  bool clone_from(const Tmxd_slot& source) { return clone_member_of(Held::family(), source); }

  // Null if the slot is empty.
  const Held* get() const { return static_cast<const Held*>(object_.get()); }
  Held* get() { return static_cast<Held*>(object_.get()); }
};

}  // namespace mxd
