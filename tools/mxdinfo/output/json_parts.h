// Parts of a document as JSON values.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/facts/source_state.h"

namespace mxdinfo {

// Keys stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// Null for an empty text.
Json text_or_null(std::string_view text);

// A member that is a text. Empty if there is none.
std::string text_at(const Json& object, const char* key);

// Sets the members of a source that say whether and where its data is; null removes them.
void set_state(Json& source, const Source_state* state);

// Escapes control and direction characters that JSON allows, but terminals act on. An indent of -1
// gives one line.
std::string dump_json(const Json& value, int indent);

// Without its classes, an empty list at the end of the text; null for null.
Json renderer_json(const mxd::Tmxd_renderer* renderer, const mxd::Feature_facts& facts);
Json class_json(const Legend_entry& entry);

// Null for null.
Json symbol_json(const mxd::Tmxd_symbol* symbol);

}  // namespace mxdinfo
