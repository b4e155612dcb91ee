// A document as an indented tree, the way people know it from a table of contents.
#pragma once

#include <string>

#include "document/mxd.h"

namespace mxdinfo {

std::string tree_text(const mxd::Tmxd_mxd& document);

}  // namespace mxdinfo
