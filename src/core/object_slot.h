// A slot: an optional nested object of some family, owned, found by a search.
#pragma once

#include <memory>

#include "core/mxd_stream.h"
#include "core/object_family.h"

namespace mxd {

// What all slots do, whatever they hold. Copying a slot clones what it holds.
class Object_slot {
 public:
  Object_slot() = default;
  Object_slot(const Object_slot&) = delete;
  Object_slot& operator=(const Object_slot&) = delete;

 protected:
  ~Object_slot() = default;

  // True with an empty slot when nothing is found before the limit. An object that fails to be
  // read stays in the slot.
  bool read_member_of(const Object_family& family, Tmxd_mxd_stream& stream, std::int64_t start,
                      std::int64_t limit);

  bool read_unless_null(const Object_family& family, Tmxd_mxd_stream& stream, std::int64_t limit);

  // True when there was something to copy and its class says that it was copied; the clone is kept
  // in any case.
  bool copy_member_of(const Object_family& family, const Object_slot& source);

  std::unique_ptr<Tmxd_obj> object_;
};

// Kind states the base class that is held, the family, and the dump's key of an empty slot.
template <class Kind>
class Tmxd_slot final : public Object_slot {
 public:
  using Held = typename Kind::Held;
  static constexpr std::string_view empty_key = Kind::empty_key;

  Tmxd_slot() = default;
  Tmxd_slot(const Tmxd_slot& source) { copy(source); }
  Tmxd_slot& operator=(const Tmxd_slot& source) {
    if (this != &source) copy(source);
    return *this;
  }
  ~Tmxd_slot() = default;

  bool read(Tmxd_mxd_stream& stream, std::int64_t limit) { return read(stream, -1, limit); }
  bool read(Tmxd_mxd_stream& stream, std::int64_t start, std::int64_t limit) {
    return read_member_of(Kind::family(), stream, start, limit);
  }
  // Like read(), but sixteen zero bytes in place of the object leave the slot empty.
  bool read_or_null(Tmxd_mxd_stream& stream, std::int64_t limit) {
    return read_unless_null(Kind::family(), stream, limit);
  }
  bool copy(const Tmxd_slot& source) { return copy_member_of(Kind::family(), source); }

  // Null when the slot is empty.
  Held* get() const { return static_cast<Held*>(object_.get()); }
};

}  // namespace mxd
