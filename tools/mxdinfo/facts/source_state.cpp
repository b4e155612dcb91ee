#include "mxdinfo/facts/source_state.h"

#include <fmt/format.h>

namespace mxdinfo {

std::string_view presence_word(Presence presence) {
  switch (presence) {
    case Presence::found:
      return "found";
    case Presence::relative:
      return "relative";
    case Presence::missing:
      return "missing";
    case Presence::not_checkable:
      break;
  }
  return "not_checkable";
}

std::string state_text(const Source_state& state) {
  switch (state.presence) {
    case Presence::found:
      return "found at " + state.path;
    case Presence::relative:
      return "found from the document's folder at " + state.path;
    case Presence::missing:
      if (state.missing_parts.empty()) return "missing, expected at " + state.path;
      return fmt::format("missing (no {}), expected at {}", fmt::join(state.missing_parts, ", "),
                         state.path);
    case Presence::not_checkable:
      break;
  }
  return "not checkable";
}

}  // namespace mxdinfo
