// The states of data in a line of an inventory.
#pragma once

#include <string>
#include <string_view>

#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

// The line with the states that the data of the document has now, or without states if the places
// are null.
std::string with_states(std::string_view line, const std::string& document,
                        const Source_places* places);

}  // namespace mxdinfo
