// Helpers of read_fields(): several numbers at once, repeated fields, and objects read into lists.
#pragma once

#include <memory>

#include "core/object_family.h"
#include "core/object_list.h"
#include "core/object_read.h"

namespace mxd {

template <std::derived_from<Tmxd_ieee_stream> Stream, Stored_number... T>
[[nodiscard]] bool read_numbers(Stream& stream, T&... out) {
  return (read_number(stream, out) && ...);
}

// Stores the current position. Always returns true, so that it fits into a chain of reads.
inline bool note_position(Tmxd_mxd_stream& stream, std::int64_t& position) {
  position = stream.position();
  return true;
}

// Reads an int32 count, then that many items; a negative count means none. Nothing is allocated
// from the count. The first item that cannot be read ends the read.
template <std::derived_from<Tmxd_ieee_stream> Stream, class Read_item>
[[nodiscard]] bool read_counted(Stream& stream, Read_item read_item) {
  std::int32_t count = 0;
  if (!read_number(stream, count)) return false;
  for (std::int32_t i = 0; i < count; ++i) {
    if (!read_item()) return false;
  }
  return true;
}

// Reads the object and appends it to the list, or drops it if it cannot be read.
template <class T>
[[nodiscard]] bool read_into(Object_list<T>& list, std::unique_ptr<T> object,
                             Tmxd_mxd_stream& stream, std::int64_t position, std::int64_t limit) {
  if (!read_object(*object, stream, position, limit)) {
    stream.load().keep_until_load_ends(std::move(object));
    return false;
  }
  list.append(std::move(object));
  return true;
}

// Empties a list during a load.
template <class T>
void drop_all(Object_list<T>& list, Tmxd_mxd_stream& stream) {
  for (std::unique_ptr<T>& object : list.take()) {
    stream.load().keep_until_load_ends(std::move(object));
  }
}

// Reads an object of T's family at every position where the search finds one. Each ends where the
// next one begins, the last one at the limit. One that cannot be read is left out. Returns false if
// the search fails.
template <class T>
[[nodiscard]] bool read_all_found(Object_list<T>& objects, Tmxd_mxd_stream& stream,
                                  std::int64_t start, std::int64_t limit) {
  const Find_all_result found = stream.find_all(T::family().candidates(), start, limit);
  if (!found.ok) return false;
  for (std::size_t i = 0; i < found.hits.size() && !stream.load().budget().exhausted(); ++i) {
    const bool last = i + 1 == found.hits.size();
    static_cast<void>(read_into(objects, T::family().template create_as<T>(found.hits[i].class_id),
                                stream, found.hits[i].position,
                                last ? limit : found.hits[i + 1].position));
  }
  return true;
}

}  // namespace mxd
