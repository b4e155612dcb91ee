// What a feature layer's record says beside the fields that are decoded.
#pragma once

#include <optional>
#include <vector>

#include "outline/byte_view.h"

namespace mxd {

class Tmxd_feature_layer;

struct Label_class {
  // As the user wrote it: "[Name]", or a script.
  Wide_string expression;
  struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
  };
  std::optional<Rgb> color;
  struct Font {
    // Empty if it is not in ASCII: its code page is not known.
    Wide_string name;
    double size_in_points = 0;
  };
  std::optional<Font> font;
};

struct Labels {
  bool shown = false;
  std::vector<Label_class> classes;
  // Whether there are as many classes as the layer counts.
  bool all_read = false;
};

// Facts that the bytes do not show beyond doubt are left out.
struct Feature_facts {
  // Empty if the layer shows all features.
  std::optional<Wide_string> definition_query;
  std::optional<Labels> labels;
  // Of a class breaks renderer: the field that values are divided by, empty if there is none, and
  // whether the legend lists the ranges from the lowest up or from the highest down.
  std::optional<Wide_string> normalization_field;
  std::optional<bool> classes_ascend;
};

// The layer is the one whose object is in [position, end) of the stream.
Feature_facts read_feature_facts(const Tmxd_feature_layer& layer, Byte_search& stream,
                                 std::uint64_t position, std::uint64_t end);

}  // namespace mxd
