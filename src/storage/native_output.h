// The file that text is written to.
#pragma once

#include <cstdio>

#include "storage/text.h"

namespace mxd {

// Empty and open for writing in text mode; null when it cannot be opened. The caller closes it.
std::FILE* open_text_output(const Wide_string& path);

}  // namespace mxd
