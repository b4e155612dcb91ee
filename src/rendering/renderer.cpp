#include "rendering/renderer.h"

#include "rendering/renderer_classes.h"

namespace mxd {

const Object_family& Tmxd_renderer::family() {
  static const Object_family family = family_of<Renderer_classes>();
  return family;
}

}  // namespace mxd
