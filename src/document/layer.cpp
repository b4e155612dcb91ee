#include "document/layer.h"

#include "core/object_read.h"
#include "document/object_search.h"
#include "rendering/property_page.h"
#include "rendering/simple_renderer.h"

namespace mxd {

bool Tmxd_group_layer::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_wide_string(stream, layer_name) && read_number(stream, visible) &&
         read_bytes(stream, 20, bytes1) && read_number(stream, layer_count) &&
         read_bytes(stream, 8, bytes2);
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
        read_number(stream, visible) && read_bytes(stream, 4, bytes1) &&
        feature_class_name.read(stream, limit) && read_object(workspace_name, stream, -1, limit))) {
    return false;
  }
  // A layer whose data is known is worth keeping, however the rest of it reads.
  read_drawing(stream, limit);
  coordinate_system.read(stream, limit);
  return true;
}

bool Tmxd_feature_layer::read_drawing(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (!(renderer.read(stream, limit) && renderer.get() && read_behind_renderer(stream, limit) &&
        read_wide_string(stream, str1) && read_number(stream, min_scale) &&
        read_number(stream, max_scale))) {
    return false;
  }
  scales_end = static_cast<std::int64_t>(stream.tell());
  return true;
}

bool Tmxd_feature_layer::read_behind_renderer(Tmxd_mxd_stream& stream, std::int64_t limit) {
  if (dynamic_cast<const Tmxd_simple_renderer*>(renderer.get())) {
    return read_bytes(stream, 156, simple_renderer_bytes);
  }
  // The page is only passed over.
  Tmxd_property_page_slot page;
  return page.read(stream, limit);
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
         read_bytes(stream, 18, bytes1) && raster_dataset_name.read(stream, limit) &&
         read_object(workspace_name, stream, -1, limit);
}

void Tmxd_raster_layer::describe(Field_writer& writer) const {
  writer.integer("ushort1", ushort1);
  writer.text("layer_name", layer_name);
  writer.bytes("bytes1", bytes1);
  writer.slot("raster_dataset_name", raster_dataset_name, "basic_raster_dataset_name");
  writer.object("workspace_name", workspace_name);
}

const Object_family& layer_family() {
  static const Object_family family(
      {family_row<Tmxd_group_layer>(), family_row<Tmxd_feature_layer>(),
       family_row<Tmxd_raster_layer>(), family_row<Tmxd_fdo_graphics_layer>()});
  return family;
}

bool read_layers(Tmxd_layers& layers, Tmxd_mxd_stream& stream, std::int64_t start,
                 std::int64_t limit) {
  return read_all_found(layers, layer_family(), stream, start, limit);
}

}  // namespace mxd
