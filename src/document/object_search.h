// Lists that are found by a search: an object at every place where an id of the family stands.
#pragma once

#include "core/list_read.h"
#include "core/object_family.h"

namespace mxd {

// Each object ends where the next one begins, the last one at the limit. One that cannot be read
// costs only itself.
template <class T>
bool read_all_found(Object_list<T>& objects, const Object_family& family, Tmxd_mxd_stream& stream,
                    std::int64_t start, std::int64_t limit) {
  const Find_all_result found = stream.find_all(family.candidates(), start, limit);
  if (!found.ok) return false;
  for (std::size_t i = 0; i < found.hits.size() && !stream.budget().exhausted(); ++i) {
    const bool last = i + 1 == found.hits.size();
    read_into(objects, family.create_as<T>(found.hits[i].class_id), stream, found.hits[i].position,
              last ? limit : found.hits[i + 1].position);
  }
  return true;
}

}  // namespace mxd
