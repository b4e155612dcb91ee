// Entry points that read a persisted object into an instance of its class.
#pragma once

#include <cstdint>

#include "core/mxd_stream.h"
#include "core/tmxd_obj.h"

namespace mxd {

// How a back-reference (a reference to an object read earlier) is resolved: it copies the fields of
// that object, or stays empty. If the classes do not match, it stays empty, which is not an error.
enum class Back_reference { copy, leave_empty };

// Each read_ function returns false if the object cannot be read. A failure after the class id is
// reported to the load's observer, unless nesting deeper than Load::max_depth is the only reason.
// Class-id searches inside the object end at the stream position `limit`; negative: no limit.

// Reads the object whose class id is at `position` (negative: the current position). Resolves
// back-references by copying.
[[nodiscard]] bool read_object(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t position,
                               std::int64_t limit);

// Reads the object at the current position. A null GUID (sixteen zero bytes) in its place means it
// is absent: the GUID is consumed and `exists` becomes 0. Any other class id is a failure.
[[nodiscard]] bool read_object_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream,
                                       std::int64_t limit,
                                       Back_reference back_reference = Back_reference::leave_empty);

// Reads the object at the current position. Anything but its class id, the end of the stream
// included, means it is absent: nothing is consumed and `exists` becomes 0.
[[nodiscard]] bool read_object_if_present(
    Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
    Back_reference back_reference = Back_reference::leave_empty);

// Consumes a null GUID (sixteen zero bytes). Returns false, and consumes nothing, if there is none.
bool skip_null_guid(Tmxd_mxd_stream& stream);

}  // namespace mxd
