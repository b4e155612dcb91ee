// Entry points that read a persisted object into an instance of its class.
#pragma once

#include <cstdint>

#include "core/mxd_stream.h"
#include "core/tmxd_obj.h"

namespace mxd {

// What a reference to an object that was read before does: copies the fields of that object, or
// leaves this one with its defaults.
enum class Back_reference { copies, stays_empty };

// All return false if the object cannot be read. A failure after the class id was accepted is
// reported to the load's observer. Class-id searches inside stay below `limit`; negative means no
// limit.

// The class id must be at the position (negative: the current one).
[[nodiscard]] bool read_object(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t position,
                               std::int64_t limit);

// Sixteen zero bytes mean an absent object and are consumed. Any other class id is a failure.
[[nodiscard]] bool read_object_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream,
                                       std::int64_t limit,
                                       Back_reference back_reference = Back_reference::stays_empty);

// Anything else in place of the class id means an absent object, and nothing is consumed.
[[nodiscard]] bool read_object_if_present(
    Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit,
    Back_reference back_reference = Back_reference::stays_empty);

// Consumes sixteen zero bytes. Returns false, and consumes nothing, if anything else follows.
bool skip_null_guid(Tmxd_mxd_stream& stream);

}  // namespace mxd
