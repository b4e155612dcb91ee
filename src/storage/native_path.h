// Paths of the command line, as the library takes them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "storage/text.h"

namespace mxd {

// The path that these UTF-8 bytes name. Off Windows a name may be any bytes: each that is not part
// of valid UTF-8 becomes a lone surrogate, 0xDC00 + byte, so that the very same file is opened.
Wide_string path_from_bytes(std::string_view bytes);

// What follows the program's name on its command line: bytes as above.
std::vector<std::string> command_line(int argc, const char* const* argv);

}  // namespace mxd
