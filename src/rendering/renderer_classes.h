// All renderer classes.
#pragma once

#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

namespace mxd {

using Renderer_classes =
    Class_list<Tmxd_simple_renderer, Tmxd_unique_value_renderer, Tmxd_class_breaks_renderer>;

// Calls the visitor with the renderer as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_renderer& renderer, Visitor&& visitor) {
  return visit_as(Renderer_classes(), renderer, std::forward<Visitor>(visitor));
}

}  // namespace mxd
