// The kinds of layers that a document may hold, of classes that are decoded and others.
#pragma once

#include <span>
#include <string>

#include "storage/guid.h"

namespace mxd {

enum class Layer_kind {
  group,
  feature,
  raster,
  graphics,
  basemap,
  map_service,
  image_service,
  unknown,
};

Layer_kind layer_kind(const Guid& class_id);

// "A4BADC1B-EBED-4A29-99DC-C6334DE352AD"
std::string guid_text(const Guid& guid);

// "basemap layer", or for an unknown kind "layer of an unknown kind, class DA4122BF-...".
std::string kind_in_words(const Guid& class_id);

// The class ids of all kinds but the unknown.
std::span<const Guid> known_layer_ids();

// The classes of layers that are decoded, and so found wherever they are.
std::span<const Guid> decoded_layer_ids();

}  // namespace mxd
