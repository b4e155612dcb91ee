// Parts of a document as JSON values.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

#include "outline/feature_facts.h"
#include "rendering/renderer.h"
#include "symbology/symbol.h"

namespace mxdinfo {

// Keys stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// Null for an empty text.
Json text_or_null(std::string_view text);
Json text_or_null(const std::optional<mxd::Wide_string>& text);

// Null for null.
Json renderer_json(const mxd::Tmxd_renderer* renderer, const mxd::Feature_facts& facts);
Json symbol_json(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
