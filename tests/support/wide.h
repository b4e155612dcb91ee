#pragma once

#include <string_view>

#include "storage/text.h"

namespace mxd::test {

// The platform's wide string, which has another character type on Windows.
inline Wide_string wide(std::u16string_view units) {
  return {units.begin(), units.end()};
}

}  // namespace mxd::test
