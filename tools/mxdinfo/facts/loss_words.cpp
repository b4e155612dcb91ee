#include "mxdinfo/facts/loss_words.h"

#include <algorithm>
#include <array>

namespace mxdinfo {
namespace {

struct Words_of_type {
  std::string_view ending;
  Loss_words words;
};

// The first entry whose ending the type has applies.
constexpr std::array words_of_types{
    Words_of_type{"_map", {"map", "it is missing or incomplete"}},
    Words_of_type{"_layer", {"layer", "it is missing"}},
    Words_of_type{"_renderer",
                  {"renderer",
                   "how the layer is drawn is not known; what is stored after it may be missing"}},
    Words_of_type{"_legend_group", {"legend", "the layer's classes are missing"}},
    Words_of_type{"_legend_class", {"legend", "the layer's classes are incomplete"}},
    Words_of_type{"_symbol", {"symbol", "a symbol or a part of it is missing"}},
    Words_of_type{"_element", {"symbol", "a line is drawn without its decoration"}},
    Words_of_type{"_decoration", {"symbol", "a line is drawn without its decoration"}},
    Words_of_type{"_template", {"symbol", "a line is drawn without its dashes"}},
    Words_of_type{"_color", {"color", "a symbol is without its color"}},
    Words_of_type{"_coordinate_system", {"coordinate system", "it is missing"}},
    Words_of_type{"_name", {"data source", "where the layer's data is stored is not known"}},
};

}  // namespace

Loss_words loss_words(std::string_view type) {
  const auto* found =
      std::find_if(words_of_types.begin(), words_of_types.end(),
                   [type](const Words_of_type& entry) { return type.ends_with(entry.ending); });
  if (found == words_of_types.end()) return {"object", "a part of the document is missing"};
  return found->words;
}

Loss_words loss_words(mxd::Layer_kind kind) {
  switch (kind) {
    case mxd::Layer_kind::basemap:
      return {"layer", "a basemap layer: only its name and its members' names are read"};
    case mxd::Layer_kind::map_service:
      return {"layer", "a map service layer: only its name is read"};
    case mxd::Layer_kind::image_service:
      return {"layer", "an image service layer: only its name is read"};
    default:
      return {"layer", "a layer of an unknown kind: only its name is read"};
  }
}

}  // namespace mxdinfo
