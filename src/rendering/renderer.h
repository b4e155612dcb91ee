// How a feature layer is drawn: the base of the renderers and the slot that a layer holds one in.
#pragma once

#include "core/object_slot.h"

namespace mxd {

class Tmxd_renderer : public Tmxd_obj {};

struct Renderer_kind {
  using Held = Tmxd_renderer;
  static constexpr std::string_view empty_key = "renderer";
  static const Object_family& family();
};
using Tmxd_renderer_slot = Tmxd_slot<Renderer_kind>;

}  // namespace mxd
