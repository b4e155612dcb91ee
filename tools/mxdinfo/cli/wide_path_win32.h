// Paths for the wide functions of Windows.
#pragma once

#include <string>

namespace mxdinfo {

// The path in UTF-16, in the form that Windows accepts if it is long.
std::wstring wide_path(const std::string& path);

}  // namespace mxdinfo
