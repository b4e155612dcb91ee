#include "document/layer.h"

#include "core/read_helpers.h"
#include "rendering/property_page.h"
#include "rendering/simple_renderer.h"

namespace mxd {

bool Tmxd_group_layer::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_wide_string(stream, layer_name) && read_number(stream, visible) &&
         read_bytes(stream, bytes1) && read_number(stream, layer_count) &&
         read_bytes(stream, bytes2);
}

void Tmxd_group_layer::describe(Field_writer& writer) const {
  writer.text("layer_name", layer_name);
  writer.integer("visible", visible);
  writer.bytes("bytes1", bytes1);
  writer.integer("layer_count", layer_count);
  writer.bytes("bytes2", bytes2);
}

bool Tmxd_feature_layer::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (!(read_wide_string(stream, layer_name) && read_wide_string(stream, layer_type_name) &&
        read_number(stream, visible) && read_bytes(stream, bytes1, 4) &&
        feature_class_name.read(stream, limit) && read_object(workspace_name, stream, -1, limit))) {
    return false;
  }
  // A layer whose data source is known is kept even if the rest of it cannot be read.
  static_cast<void>(read_drawing(stream, limit));
  static_cast<void>(coordinate_system.read(stream, limit));
  return true;
}

bool Tmxd_feature_layer::read_drawing(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return renderer.read(stream, limit) && renderer.get() && skip_after_renderer(stream, limit) &&
         read_wide_string(stream, str1) && read_number(stream, min_scale) &&
         read_number(stream, max_scale) && note_position(stream, scales_end);
}

bool Tmxd_feature_layer::skip_after_renderer(Tmxd_mxd_stream& stream, std::int64_t limit) {
  constexpr std::size_t simple_renderer_trailer = 156;
  return is_of<Tmxd_simple_renderer>(*renderer.get()) ? skip_bytes<simple_renderer_trailer>(stream)
                                                      : skip_property_page(stream, limit);
}

void Tmxd_feature_layer::describe(Field_writer& writer) const {
  writer.text("layer_name", layer_name);
  writer.text("layer_type_name", layer_type_name);
  writer.integer("visible", visible);
  writer.bytes("bytes1", bytes1);
  writer.real("min_scale", min_scale);
  writer.real("max_scale", max_scale);
  writer.slot("feature_class_name", feature_class_name, "basic_feature_class_name");
  writer.object("workspace_name", workspace_name);
  writer.slot("renderer", renderer);
  writer.text("str1", str1);
  writer.slot("coordinate_system", coordinate_system);
}

bool Tmxd_raster_layer::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_number(stream, ushort1) && read_wide_string(stream, layer_name) &&
         read_bytes(stream, bytes1, 18) && raster_dataset_name.read(stream, limit) &&
         read_object(workspace_name, stream, -1, limit);
}

void Tmxd_raster_layer::describe(Field_writer& writer) const {
  writer.integer("ushort1", ushort1);
  writer.text("layer_name", layer_name);
  writer.bytes("bytes1", bytes1);
  writer.slot("raster_dataset_name", raster_dataset_name, "basic_raster_dataset_name");
  writer.object("workspace_name", workspace_name);
}

const Object_family& Tmxd_layer::family() {
  static const Object_family family = family_of<Layer_classes>();
  return family;
}

}  // namespace mxd
