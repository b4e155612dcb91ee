// A map's layers: one flat list in stream order, in which the members of a group follow the group.
#pragma once

#include "core/object_list.h"
#include "core/object_slot.h"
#include "document/coordinate_system.h"
#include "document/names.h"
#include "rendering/renderer.h"
#include "storage/fixed_bytes.h"

namespace mxd {

class Tmxd_layer : public Tmxd_obj {
 public:
  static const Object_family& family();

  Wide_string layer_name;
  Wide_string layer_type_name;
  std::int16_t visible = 0;
  Fixed_bytes<20> bytes1;
  double min_scale = 0;
  double max_scale = 0;
};

class Tmxd_group_layer final : public Persisted_class<Tmxd_group_layer, Tmxd_layer> {
 public:
  static constexpr Class_id clsid{"EDAD6647-1810-11D1-86AE-0000F8751720"};
  static constexpr std::string_view type = "mxd_group_layer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  // The number of layers after it in the map's list that are its direct members.
  std::int32_t layer_count = 0;
  Fixed_bytes<8> bytes2;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_feature_layer final : public Persisted_class<Tmxd_feature_layer, Tmxd_layer> {
 public:
  static constexpr Class_id clsid{"E663A651-8AAD-11D0-BEC7-00805F7C4268"};
  static constexpr std::string_view type = "mxd_feature_layer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_feature_class_name_slot feature_class_name;
  Tmxd_workspace_name workspace_name;
  Tmxd_renderer_slot renderer;
  Wide_string str1;
  // Where max_scale ends in the stream, or -1 if it was not read. Shown nowhere.
  std::int64_t scales_end = -1;
  Tmxd_coordinate_system_slot coordinate_system;

 protected:
  void describe(Field_writer& writer) const override;

 private:
  bool read_drawing(Tmxd_mxd_stream& stream, std::int64_t limit);
  bool skip_after_renderer(Tmxd_mxd_stream& stream, std::int64_t limit);
};

class Tmxd_raster_layer final : public Persisted_class<Tmxd_raster_layer, Tmxd_layer> {
 public:
  static constexpr Class_id clsid{"D02371C9-35F7-11D2-B1F2-00C04F8EDEFF"};
  static constexpr std::string_view type = "mxd_raster_layer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::uint16_t ushort1 = 0;
  Tmxd_raster_dataset_name_slot raster_dataset_name;
  Tmxd_workspace_name workspace_name;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_fdo_graphics_layer final : public Persisted_class<Tmxd_fdo_graphics_layer, Tmxd_layer> {
 public:
  static constexpr Class_id clsid{"34B2EF83-F4AC-11D1-A245-080009B6F22B"};
  static constexpr std::string_view type = "mxd_fdo_graphics_layer";

  bool read_fields(Tmxd_mxd_stream& /*stream*/, std::int64_t /*limit*/) override { return true; }

 protected:
  void describe(Field_writer& /*writer*/) const override {}
};

using Tmxd_layers = Object_list<Tmxd_layer>;

using Layer_classes =
    Class_list<Tmxd_group_layer, Tmxd_feature_layer, Tmxd_raster_layer, Tmxd_fdo_graphics_layer>;

// Calls the visitor with the layer as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_layer& layer, Visitor&& visitor) {
  return visit_as(Layer_classes(), layer, std::forward<Visitor>(visitor));
}

}  // namespace mxd
