// What changed between two states of a document.
#pragma once

#include <string>

#include "mxdinfo/output/json_parts.h"

namespace mxdinfo {

// From two documents as --format json writes them: {"sources": {"added", "removed"}, "items":
// [...]} with an item for each map and layer that was added, removed or changed. Items of the same
// name are compared in their order.
Json diff_of(const Json& old_document, const Json& new_document);
bool is_empty_diff(const Json& diff);

// The diff as lines of text that begin with +, - or ~.
std::string diff_text(const Json& diff);

}  // namespace mxdinfo
