// Takes one named stream out of an OLE2 compound file.
#pragma once

#include "storage/memory_stream.h"
#include "storage/text.h"

namespace mxd {

// Copies the first stream of that name, in whatever storage, to `out`. 1 when there is one, even if
// its sectors are damaged and `out` holds only what could be copied; 0, with `out` untouched, when
// the file or its tables cannot be read, nothing has that name or memory runs out.
// Time and memory grow with the file's size, never with what its tables claim; how many bytes of
// the file were read is told to whom it interests.
int read_named_stream(const Wide_string& path, Wide_view name, Tmxd_stream_m& out,
                      std::uint64_t* bytes_read = nullptr);

// The same for a file that is open, or in memory.
int read_named_stream(Tmxd_stream& stream, Wide_view name, Tmxd_stream_m& out,
                      std::uint64_t* bytes_read = nullptr);

}  // namespace mxd
