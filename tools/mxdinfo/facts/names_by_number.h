// What a reference to a map or a layer means: the one stored before under the same number.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "core/tmxd_obj.h"
#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {

class Names_by_number {
 public:
  void add(const mxd::Tmxd_obj& object, const mxd::Wide_string& name) {
    if (!object.repeat) names_.emplace(object.number, utf8(name));
  }

  // Nothing where the object itself was lost.
  std::optional<std::string> name_of(const mxd::Tmxd_obj& reference) const {
    const auto found = names_.find(reference.number);
    if (found == names_.end()) return std::nullopt;
    return found->second;
  }

 private:
  std::map<std::uint16_t, std::string> names_;
};

}  // namespace mxdinfo
