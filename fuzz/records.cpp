#include "records.h"

#include "document/map.h"
#include "support/rendering_records.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

// Out of the way of the numbers inside.
constexpr int outer_number = 65500;

}  // namespace

Bytes in_map(const Bytes& content) {
  return Bytes().i32(1).add(
      Bytes().object(Tmxd_map::clsid, outer_number, 7, Bytes().wide("M").add(content)));
}

Bytes feature_layer(int number, const Bytes& drawing) {
  const Bytes name =
      Bytes().object(Tmxd_feature_class_name::clsid, number + 1, 2,
                     Bytes().wide("a").counting(6).wide("b").wide("c").i32(3).counting(6));
  const Bytes workspace =
      Bytes().object(Tmxd_workspace_name::clsid, number + 2, 2, Bytes().wide("w"));
  const Bytes fields = Bytes().wide("L").wide("F").u16(1).counting(4).add(name).add(workspace);
  return Bytes().object(Tmxd_feature_layer::clsid, number, 9, Bytes(fields).add(drawing));
}

Bytes in_layer(const Bytes& drawing) {
  return in_map(feature_layer(outer_number + 1, drawing));
}

Bytes in_simple_renderer(const Bytes& symbol) {
  return in_layer(simple_renderer(outer_number + 4, symbol).zeros(156).wide("N").f64s({2, 1}));
}

}  // namespace mxd::fuzz
