#include "mxdinfo/facts/marker_shapes.h"

#include <algorithm>
#include <array>

#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

using Corner = Marker_shape::Corner;

constexpr std::array triangle{Corner{0, -1}, Corner{0.866, 0.5}, Corner{-0.866, 0.5}};
constexpr std::array square{Corner{1, -1}, Corner{1, 1}, Corner{-1, 1}, Corner{-1, -1}};
constexpr std::array pentagon{Corner{0, -1}, Corner{0.951, -0.309}, Corner{0.588, 0.809},
                              Corner{-0.588, 0.809}, Corner{-0.951, -0.309}};
constexpr std::array hexagon{Corner{0, -1}, Corner{0.866, -0.5}, Corner{0.866, 0.5},
                             Corner{0, 1},  Corner{-0.866, 0.5}, Corner{-0.866, -0.5}};
constexpr std::array octagon{Corner{0.414, -1},  Corner{1, -0.414}, Corner{1, 0.414},
                             Corner{0.414, 1},   Corner{-0.414, 1}, Corner{-1, 0.414},
                             Corner{-1, -0.414}, Corner{-0.414, -1}};
constexpr std::array star{Corner{0, -1},         Corner{0.225, -0.309}, Corner{0.951, -0.309},
                          Corner{0.363, 0.118},  Corner{0.588, 0.809},  Corner{0, 0.382},
                          Corner{-0.588, 0.809}, Corner{-0.363, 0.118}, Corner{-0.951, -0.309},
                          Corner{-0.225, -0.309}};

struct Shape_of_character {
  std::int32_t character;
  Marker_shape shape;
};

// Sizes are parts of the font's size. ArcMap's pictures show all but 36 to 38 and 43 to 45.
constexpr std::array shapes{
    Shape_of_character{33, {"circle", {}, true, 0.75}},
    Shape_of_character{34, {"square", square, true, 0.66}},
    Shape_of_character{35, {"triangle", triangle, true, 0.8}},
    Shape_of_character{36, {"pentagon", pentagon, true, 0.75}},
    Shape_of_character{37, {"hexagon", hexagon, true, 0.75}},
    Shape_of_character{38, {"octagon", octagon, true, 0.75}},
    Shape_of_character{40, {"circle", {}, false, 0.75}},
    Shape_of_character{41, {"square", square, false, 0.66}},
    Shape_of_character{42, {"triangle", triangle, false, 0.8}},
    Shape_of_character{43, {"pentagon", pentagon, false, 0.75}},
    Shape_of_character{44, {"hexagon", hexagon, false, 0.75}},
    Shape_of_character{45, {"octagon", octagon, false, 0.75}},
    Shape_of_character{94, {"star", star, true, 1.06}},
};

}  // namespace

const Marker_shape* shape_of(const mxd::Tmxd_char_marker_symbol& symbol) {
  if (utf8(symbol.font_name) != "ESRI Default Marker") return nullptr;
  const auto* found = std::find_if(
      shapes.begin(), shapes.end(),
      [&symbol](const Shape_of_character& each) { return each.character == symbol.unicode; });
  return found == shapes.end() ? nullptr : &found->shape;
}

}  // namespace mxdinfo
