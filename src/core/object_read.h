// The ways in which a persisted object is read into an instance of its class.
#pragma once

#include <cstdint>

#include "core/mxd_stream.h"
#include "core/tmxd_obj.h"

namespace mxd {

// The class id must stand at the position (negative: the current one). A number that was read
// before makes the object a copy of that one.
bool read_object(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t position,
                 std::int64_t limit);

// Sixteen zero bytes stand for an absent object. A number read before leaves the object as it is.
bool read_object_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit);

// Anything but the class id means an absent object, for which nothing is consumed. A number read
// before leaves the object as it is.
bool read_object_if_present(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit);

// As read_object, for an object that may be left out without a trace.
bool read_object_or_skip(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit);

// As read_object, for an object that sixteen zero bytes stand for when it is absent.
bool read_object_or_zeros(Tmxd_obj& object, Tmxd_mxd_stream& stream, std::int64_t limit);

// Consumes sixteen zero bytes, which stand for an absent object. Returns false, and consumes nothing,
// if anything else follows.
bool skip_null_guid(Tmxd_mxd_stream& stream);

}  // namespace mxd
