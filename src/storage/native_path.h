// Paths of the command line, as the library takes them.
#pragma once

#include <string_view>

#include "storage/text.h"

namespace mxd {

// The path that these UTF-8 bytes name. Off Windows a name may be any bytes: each that is not part
// of valid UTF-8 becomes a lone surrogate, 0xDC00 + byte, so that the very same file is opened.
Wide_string path_from_bytes(std::string_view bytes);

}  // namespace mxd
