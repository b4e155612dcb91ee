// Paths for the wide functions of Windows.
#pragma once

#include <string>

namespace mxdinfo {

std::wstring wide_path(const std::string& path);

// The absolute path with "\\?\" in front, so that it may be longer than 260 units. Names of devices
// and paths that Windows does not resolve stay as they are.
std::wstring extended_path(const std::string& path);

}  // namespace mxdinfo
