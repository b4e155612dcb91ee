// The smallest records that can contain a renderer in the stream "Maps".
#pragma once

#include "document/map.h"
#include "support/rendering_records.h"

namespace mxd::test {

// Out of the way of the numbers inside.
inline constexpr int outer_number = 65500;

inline Bytes map_record(int number, const char* name, const Bytes& content) {
  return object<Tmxd_map>(number, 7, Bytes().wide(name).add(content));
}

inline Bytes group_layer(int number, const char* name, int members) {
  return object<Tmxd_group_layer>(
      number, 1, Bytes().wide(name).u16(0xFFFF).counting(20).i32(members).counting(8));
}

inline Bytes workspace(int number, const char* name) {
  return object<Tmxd_workspace_name>(number, 1, Bytes().wide(name));
}

inline Bytes feature_class(int number, const char* name) {
  return Bytes().object(
      Tmxd_feature_class_name::clsid, number, 2,
      Bytes().wide(name).counting(6).wide("type").wide("Shape").i32(3).counting(6));
}

inline Bytes geographic(int number, std::string_view wkt) {
  return object<Tmxd_geographic_coordinate_system>(number, 1, Bytes().narrow(wkt));
}

inline Bytes layer_record(int number, const char* name, const Bytes& data_and_drawing) {
  return Bytes().object(
      Tmxd_feature_layer::clsid, number, 9,
      Bytes().wide(name).wide("Feature Layer").u16(1).counting(4).add(data_and_drawing));
}

// A layer with this renderer. It uses the number and the next two.
inline Bytes feature_layer(int number, const Bytes& drawing) {
  return layer_record(number, "L",
                      feature_class(number + 1, "a").add(workspace(number + 2, "w")).add(drawing));
}

// Whole streams that hold this.
inline Bytes in_map(const Bytes& content) {
  return Bytes().i32(1).add(map_record(outer_number, "M", content));
}
inline Bytes in_layer(const Bytes& drawing) {
  return in_map(feature_layer(outer_number + 1, drawing));
}
inline Bytes in_simple_renderer(const Bytes& symbol) {
  return in_layer(simple_renderer(outer_number + 4, symbol).zeros(156).wide("N").f64s({2, 1}));
}

}  // namespace mxd::test
