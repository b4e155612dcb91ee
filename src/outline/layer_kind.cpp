#include "outline/layer_kind.h"

#include <array>

#include "document/layer.h"
#include "storage/text.h"

namespace mxd {
namespace {

constexpr std::array<Guid, 7> ids = {
    Tmxd_group_layer::clsid.guid,
    Tmxd_feature_layer::clsid.guid,
    Tmxd_raster_layer::clsid.guid,
    Tmxd_fdo_graphics_layer::clsid.guid,
    guid_from_text("DA4122BF-7B07-4158-88B0-19D342BED8BA"),
    guid_from_text("34D94BB0-3628-4D65-B7FF-4945122F30D5"),
    guid_from_text("477D13E7-8D68-45B6-A7FD-2EF442BCCE95"),
};
constexpr std::array<const char*, 7> words = {
    "group layer",   "feature layer",     "raster layer",        "graphics layer",
    "basemap layer", "map service layer", "image service layer",
};
constexpr std::size_t decoded_count = 4;

}  // namespace

Layer_kind layer_kind(const Guid& class_id) {
  for (std::size_t i = 0; i < ids.size(); ++i) {
    if (ids[i] == class_id) return static_cast<Layer_kind>(i);
  }
  return Layer_kind::unknown;
}

std::string guid_text(const Guid& guid) {
  std::string text = bytes_to_hex({guid.bytes.begin(), guid.bytes.end()}, "");
  constexpr std::array<std::size_t, 4> dashes = {8, 13, 18, 23};
  for (const std::size_t dash : dashes) text.insert(dash, 1, '-');
  return text;
}

std::string kind_in_words(const Guid& class_id) {
  const Layer_kind kind = layer_kind(class_id);
  if (kind != Layer_kind::unknown) return words[static_cast<std::size_t>(kind)];
  return "layer of an unknown kind, class " + guid_text(class_id);
}

std::span<const Guid> known_layer_ids() {
  return ids;
}

std::span<const Guid> decoded_layer_ids() {
  return std::span(ids).first(decoded_count);
}

}  // namespace mxd
