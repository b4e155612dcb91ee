// Whether the data of a layer is there.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mxd {
class Tmxd_layer;
}

namespace mxdinfo {

// Relative is found from the document's place. Data of services and enterprise databases cannot be
// checked.
enum class Presence { found, relative, missing, not_checkable };

struct Source_state {
  Presence presence = Presence::not_checkable;
  // Where the data is, or should be. Empty for data that cannot be checked.
  std::string path;
  // Of data that is incomplete: ".shx".
  std::vector<std::string> missing_parts;
};
using Source_states = std::unordered_map<const mxd::Tmxd_layer*, Source_state>;

// "found", "relative", "missing", "not_checkable"
std::string_view presence_word(Presence presence);
// "missing (no .shx), expected at /mnt/data/roads.shp"
std::string state_text(const Source_state& state);

}  // namespace mxdinfo
