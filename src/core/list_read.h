// Objects read into a list, and out of it, while a load lasts.
#pragma once

#include <memory>

#include "core/object_list.h"
#include "core/object_read.h"

namespace mxd {

// Appends the object when it can be read; otherwise it is dropped.
template <class T>
bool read_into(Object_list<T>& list, std::unique_ptr<T> object, Tmxd_mxd_stream& stream,
               std::int64_t position, std::int64_t limit) {
  if (!read_object(*object, stream, position, limit)) {
    stream.keep_until_load_ends(std::move(object));
    return false;
  }
  list.append(std::move(object));
  return true;
}

template <class T>
void drop_all(Object_list<T>& list, Tmxd_mxd_stream& stream) {
  for (std::unique_ptr<T>& object : list.take()) stream.keep_until_load_ends(std::move(object));
}

}  // namespace mxd
