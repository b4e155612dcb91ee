// The ids of all classes, including those that no search looks for.
#pragma once

#include <vector>

#include "document/classes.h"

namespace mxd::fuzz {

inline const std::vector<Guid>& all_class_ids() {
  static const std::vector<Guid> ids = [] {
    std::vector<Guid> all = class_ids_of<Join<Searched_classes, Expected_classes>>();
    all.push_back(Class_id("0be35203-8f91-11ce-9de3-00aa004bb851").guid);
    return all;
  }();
  return ids;
}

}  // namespace mxd::fuzz
