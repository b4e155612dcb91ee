// What the fuzzers start from: small inputs, each with something of its own.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "storage/stream.h"
#include "storage/text.h"

namespace mxd::fuzz {

using Seeds = std::vector<std::pair<std::string, Byte_run>>;

// Streams "Maps", one per class and version, and one of everything.
Seeds stream_seeds();
// Streams with lists of layers, and what stands after the decoded fields.
Seeds outline_seeds();
// Streams that repeat texts and symbols by references.
Seeds report_seeds();
// Compound files, whole ones and one per damaged table.
Seeds compound_seeds();
// Compound files with a stream "Maps" that holds maps.
Seeds document_seeds();
Seeds search_seeds();
Seeds text_seeds();

// The bytes of that stream in the document at the path; none when there are none.
Byte_run maps_stream(const Wide_string& document);

// Short runs of bytes that decide how a document is read.
std::vector<Byte_run> markers();

}  // namespace mxd::fuzz
