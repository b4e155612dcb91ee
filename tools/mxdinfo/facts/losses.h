// What could not be read of a document, in words.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/loss_words.h"
#include "mxdinfo/facts/report.h"

namespace mxdinfo {

struct Loss {
  // Null for a part outside all maps.
  const mxd::Map_outline* map = nullptr;
  // Nothing for a part of the map that is in none of its layers.
  std::optional<Listed_layer> layer;
  Loss_words words;
  // The object that could not be decoded, if it is one. It belongs to the report.
  const Decode_error* error = nullptr;
};

// Map by map in stream order; parts outside all maps come last.
std::vector<Loss> losses_of(const Report& report);

// In the stream of the maps; nothing if it is not known.
std::optional<std::uint64_t> offset_of(const Loss& loss);

// "Layers / Roads / Motorways"; empty for a part outside all maps.
std::string path_of(const Loss& loss);

// "the legend could not be read: the layer's classes are missing"
std::string text_of(const Loss& loss);

// "plan.mxd: Layers / Roads: the legend could not be read: ... (mxd_legend_group 17 at byte 5120)"
std::string line_of(const Report& report, const Loss& loss);

}  // namespace mxdinfo
