// Text of documents for terminals.
#pragma once

#include <string>

#include "storage/text.h"

namespace mxdinfo {

// UTF-8 up to the first NUL. What is no valid UTF-16 becomes U+FFFD, a control character a blank:
// a name must not move the terminal's cursor.
std::string utf8(mxd::Wide_view text);

}  // namespace mxdinfo
