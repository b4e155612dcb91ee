#include "core/object_slot.h"

#include "core/object_read.h"

namespace mxd {

bool Object_slot::read_member_of(const Object_family& family, Tmxd_mxd_stream& stream,
                                 std::int64_t start, std::int64_t limit) {
  stream.load().keep_until_load_ends(std::move(object_));
  const Scan_result found = stream.scan(family.candidates(), start, limit);
  if (!found.hit) return found.ok;
  object_ = family.create(found.hit->class_id);
  return object_ && read_object(*object_, stream, found.hit->position, limit);
}

bool Object_slot::read_unless_null(const Object_family& family, Tmxd_mxd_stream& stream,
                                   std::int64_t limit) {
  if (!skip_null_guid(stream)) return read_member_of(family, stream, -1, limit);
  stream.load().keep_until_load_ends(std::move(object_));
  return true;
}

bool Object_slot::clone_member_of(const Object_family& family, const Object_slot& source) {
  object_.reset();
  if (!source.object_) return false;
  object_ = family.create(source.object_->class_id().guid);
  return object_ && object_->copy_from(*source.object_);
}

}  // namespace mxd
