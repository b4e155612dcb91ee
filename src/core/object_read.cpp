#include "core/object_read.h"

namespace mxd {
namespace {

// A copy costs the budget as many bytes, and counts as many levels, as its source. The result of
// copy_from() is ignored because some classes return false after copying.
bool copy_registered(Tmxd_obj& object, Tmxd_mxd_stream& stream, const Registered_object& source,
                     Load::Object_scope& scope) {
  if (!stream.load().spend(source.cost)) return false;
  static_cast<void>(object.copy_from(*source.object));
  scope.add_copied_levels(source.levels);
  return true;
}

bool read_new(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
              Load::Object_scope& scope) {
  if (!read_number(stream, object.version) || !object.read_fields(stream, limit)) return false;
  scope.register_object(object);
  return true;
}

// Reads what follows the class id. `start`, the position of the class id, is for error reports.
// An object that is nested too deeply fails unreported; the reads around it fail and are reported.
bool read_after_class_id(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t start,
                         std::int64_t limit, Back_reference back_reference) {
  Load::Object_scope scope(stream.load());
  if (scope.too_deep()) return false;
  bool ok = stream.load().spend(object.object_size()) && read_number(stream, object.number) &&
            read_number(stream, object.reserve);
  if (const Registered_object* source = ok ? stream.load().find(object.number) : nullptr) {
    object.repeat = 1;
    if (back_reference == Back_reference::leave_empty) return true;
    if (!object.can_copy(*source->object)) return true;
    if (!scope.fits(source->levels)) return false;
    ok = copy_registered(object, stream, *source, scope);
  } else if (ok) {
    ok = read_new(object, stream, limit, scope);
  }
  if (!ok) stream.load().report({object.number, object.type_name(), start});
  return ok;
}

bool mark_absent(Tmxd_obj& object) {
  object.exists = 0;
  return true;
}

}  // namespace

bool read_object(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t position,
                 std::int64_t limit) {
  if (position < 0) position = stream.position();
  return stream.seek(static_cast<std::uint64_t>(position)) &&
         read_class_id(stream, object.class_id().guid) &&
         read_after_class_id(object, stream, position, limit, Back_reference::copy);
}

bool read_object_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
                         Back_reference back_reference) {
  const std::int64_t start = stream.position();
  Guid found;
  if (!read_guid(stream, found)) return false;
  if (found == object.class_id().guid) {
    return read_after_class_id(object, stream, start, limit, back_reference);
  }
  return found.is_null() && mark_absent(object);
}

bool read_object_if_present(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
                            Back_reference back_reference) {
  const std::int64_t start = stream.position();
  if (!read_class_id(stream, object.class_id().guid)) {
    return stream.seek(static_cast<std::uint64_t>(start)) && mark_absent(object);
  }
  return read_after_class_id(object, stream, start, limit, back_reference);
}

bool skip_null_guid(Tmxd_mxd_stream& stream) {
  const std::uint64_t start = stream.tell();
  Guid found;
  if (read_guid(stream, found) && found.is_null()) return true;
  static_cast<void>(stream.seek(start));
  return false;
}

}  // namespace mxd
