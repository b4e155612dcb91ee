// Parts of a document as JSON values.
#pragma once

#include <nlohmann/json.hpp>

#include "symbology/symbol.h"

namespace mxdinfo {

// Keys stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// Null for null.
Json symbol_json(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
