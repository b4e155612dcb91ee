#include "core/object_read.h"

namespace mxd {
namespace {

enum class Back_reference { copies, stays_empty };

// A copy costs what reading its source did, and stands as deep as that. What the class says of its
// copy is no measure of either.
bool copy_registered(Tmxd_obj& object, Tmxd_mxd_stream& stream, const Registered_object& source,
                     Nesting_scope& nesting) {
  if (!stream.budget().spend(source.cost)) return false;
  object.copy_from(*source.object);
  nesting.count_levels(source.levels);
  return true;
}

// What follows the class id.
bool read_behind_class_id(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t start,
                          std::int64_t limit, Back_reference back_reference) {
  Nesting_scope nesting(stream);
  if (nesting.too_deep()) return false;
  bool ok = stream.budget().spend(object.object_size()) && read_number(stream, object.number) &&
            read_number(stream, object.reserve);
  const Registered_object* source = ok ? stream.registry().find(object.number) : nullptr;
  if (source) {
    object.repeat = 1;
    if (back_reference == Back_reference::stays_empty) return true;
    if (!object.can_copy(*source->object)) return true;
    if (!nesting.fits(source->levels)) return false;
    ok = copy_registered(object, stream, *source, nesting);
  } else if (ok) {
    ok = read_number(stream, object.version) && object.read_fields(stream, limit);
    if (ok) stream.register_object(object, nesting.cost(), nesting.levels());
  }
  if (!ok) stream.errors().read_failed({object.number, object.type_name(), start});
  return ok;
}

bool absent(Tmxd_obj& object) {
  object.exists = 0;
  return true;
}

// Absent unless the class id stands here; then nothing is consumed.
bool read_unless_foreign(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
                         Back_reference back_reference) {
  const std::uint64_t start = stream.tell();
  if (!read_class_id(stream, object.class_id().guid)) {
    stream.seek(start);
    return absent(object);
  }
  return read_behind_class_id(object, stream, static_cast<std::int64_t>(start), limit,
                              back_reference);
}

// Absent where sixteen zero bytes stand; these are consumed.
bool read_unless_zeros(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
                       Back_reference back_reference) {
  const auto start = static_cast<std::int64_t>(stream.tell());
  Guid found;
  if (!read_guid(stream, found)) return false;
  if (found == object.class_id().guid) {
    return read_behind_class_id(object, stream, start, limit, back_reference);
  }
  return found.is_null() && absent(object);
}

}  // namespace

bool read_object(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t position,
                 std::int64_t limit) {
  if (position < 0) position = static_cast<std::int64_t>(stream.tell());
  return stream.seek(static_cast<std::uint64_t>(position)) &&
         read_class_id(stream, object.class_id().guid) &&
         read_behind_class_id(object, stream, position, limit, Back_reference::copies);
}

bool read_object_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_unless_zeros(object, stream, limit, Back_reference::stays_empty);
}

bool read_object_if_present(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_unless_foreign(object, stream, limit, Back_reference::stays_empty);
}

bool read_object_or_skip(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_unless_foreign(object, stream, limit, Back_reference::copies);
}

bool skip_null_guid(Tmxd_mxd_stream& stream) {
  const std::uint64_t start = stream.tell();
  Guid found;
  if (read_guid(stream, found) && found.is_null()) return true;
  stream.seek(start);
  return false;
}

bool read_object_or_zeros(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_unless_zeros(object, stream, limit, Back_reference::copies);
}

}  // namespace mxd
