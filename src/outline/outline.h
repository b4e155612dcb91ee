// The outline of a document: which maps and layers its file holds, read or not, and facts about
// them that the decoded tree does not have.
//
// It is read beside the tree, from the same bytes, and changes nothing in it. Time and memory are
// linear in the size of the file, whatever its bytes are.
#pragma once

#include <span>
#include <vector>

#include "document/mxd.h"
#include "outline/document_facts.h"
#include "outline/map_outline.h"

namespace mxd {

struct Outline {
  Document_facts document;
  // One for each map of the tree that is no reference, in the same order.
  std::vector<Map_outline> maps;
  // Bytes searched and records visited: the work that reading it took.
  std::uint64_t steps = 0;
};

// The bytes of the three streams that the outline is read from. Any may be empty.
struct Outline_streams {
  std::span<const std::uint8_t> maps;
  std::span<const std::uint8_t> version;
  std::span<const std::uint8_t> metadata;
};

// The outline refers to the document's layers, and must not outlive them.
Outline read_outline(const Tmxd_mxd& document, const Outline_streams& streams);

// As above, from the document's file, whose position changes.
Outline read_outline(const Tmxd_mxd& document, Tmxd_stream& file);

}  // namespace mxd
