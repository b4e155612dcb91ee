// The EPSG code of a coordinate system.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace mxd {

// The code that well-known text states for the system itself, by AUTHORITY["EPSG",n] or
// ID["EPSG",n]; nothing if it states none. Codes of parts, such as a datum, are not the system's.
std::optional<std::int32_t> epsg_code(std::string_view wkt);

}  // namespace mxd
