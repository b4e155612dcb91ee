// Losses in words that help without knowledge of the file format.
#pragma once

#include <string_view>

#include "outline/outline.h"

namespace mxdinfo {

struct Loss_words {
  // "layer", "legend", "symbol"
  std::string_view subject;
  // "it is drawn without symbols"
  std::string_view consequence;
};

// By the type of the object that could not be read, as "mxd_legend_group".
Loss_words loss_words(std::string_view type);

// Of a layer whose kind is not decoded.
Loss_words loss_words(mxd::Layer_kind kind);

}  // namespace mxdinfo
