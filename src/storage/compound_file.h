// Extracts one named stream from an OLE2 compound file.
#pragma once

#include "storage/memory_stream.h"
#include "storage/text.h"

namespace mxd {

// Copies the first stream of that name, in any storage, to `out`. Returns true if there is one,
// even if its sectors are damaged and only part of it could be copied. Returns false, and leaves
// `out` unchanged, if the file or its tables cannot be read, no stream has the name or memory runs
// out. Time and memory are bounded by the size of the file, not by what its tables claim.
[[nodiscard]] bool read_named_stream(const Wide_string& path, Wide_view name, Tmxd_stream_m& out);

// The same for an open file or one in memory.
[[nodiscard]] bool read_named_stream(Tmxd_stream& file, Wide_view name, Tmxd_stream_m& out);

}  // namespace mxd
