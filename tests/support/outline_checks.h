// What holds of every outline, whatever the bytes that it was read from.
#pragma once

#include <span>
#include <string>

#include "core/load.h"
#include "outline/outline.h"

namespace mxd::test {

// Decodes these bytes as a document's stream "Maps". Returns the budget as it is after that.
Load_budget load_maps(Tmxd_mxd& document, std::span<const std::uint8_t> maps,
                      Load_observer& observer);
Load_budget load_maps(Tmxd_mxd& document, Tmxd_stream_m& maps, Load_observer& observer);

// What is wrong with the outline of a stream of that size; empty if nothing is.
std::string outline_fault(const Outline& outline, std::uint64_t stream_size);

// The layers of a map, as "group, group/member". "!": the read failed; "?": the class is not
// decoded; "*": in no list; "&": a reference.
std::string layers_text(const Map_outline& map);

}  // namespace mxd::test
