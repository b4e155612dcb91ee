#include "rendering/renderer.h"

#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

namespace mxd {

const Object_family& Renderer_kind::family() {
  static const Object_family family({family_row<Tmxd_simple_renderer>(),
                                     family_row<Tmxd_unique_value_renderer>(),
                                     family_row<Tmxd_class_breaks_renderer>()});
  return family;
}

}  // namespace mxd
