// How a feature layer is drawn: the base of the renderers, and the slot in which a layer holds one.
#pragma once

#include "core/object_slot.h"

namespace mxd {

class Tmxd_renderer : public Tmxd_obj {
 public:
  static const Object_family& family();
  static constexpr std::string_view empty_key = "renderer";
};

using Tmxd_renderer_slot = Tmxd_slot<Tmxd_renderer>;

}  // namespace mxd
