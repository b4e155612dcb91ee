#include "api/handles.h"
#include "document/layer.h"

using namespace mxd;

namespace {

const Tmxd_layer& layer_of(const vq_mxd_layer* handle) {
  return api::from_handle<Tmxd_layer>(handle);
}

const Tmxd_feature_layer& feature_layer_of(const vq_mxd_feature_layer* handle) {
  return api::from_handle<Tmxd_feature_layer>(handle);
}

const Tmxd_basic_feature_class_name& feature_class_name_of(
    const vq_mxd_basic_feature_class_name* handle) {
  return api::from_handle<Tmxd_basic_feature_class_name>(handle);
}

}  // namespace

extern "C" {

int64_t vq_mxd_layers_get_size(const vq_mxd_layers* layers) {
  return api::list_size<Tmxd_layer>(layers);
}

const vq_mxd_layer* vq_mxd_layers_get(const vq_mxd_layers* layers, int32_t index) {
  return api::list_item<Tmxd_layer, vq_mxd_layer>(layers, index);
}

const vq_mxd_char* vq_mxd_layer_get_layer_name(const vq_mxd_layer* layer) {
  return layer_of(layer).layer_name.c_str();
}

const vq_mxd_char* vq_mxd_layer_get_layer_type_name(const vq_mxd_layer* layer) {
  return layer_of(layer).layer_type_name.c_str();
}

uint16_t vq_mxd_layer_get_visible(const vq_mxd_layer* layer) {
  return static_cast<uint16_t>(layer_of(layer).visible);
}

double vq_mxd_layer_get_min_scale(const vq_mxd_layer* layer) {
  return layer_of(layer).min_scale;
}

double vq_mxd_layer_get_max_scale(const vq_mxd_layer* layer) {
  return layer_of(layer).max_scale;
}

uint32_t vq_mxd_group_layer_get_layer_count(const vq_mxd_group_layer* layer) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_group_layer>(layer).layer_count);
}

const vq_mxd_basic_feature_class_name* vq_mxd_feature_layer_get_basic_feature_class_name(
    const vq_mxd_feature_layer* layer) {
  return api::to_handle<vq_mxd_basic_feature_class_name>(
      feature_layer_of(layer).feature_class_name.get());
}

const vq_mxd_workspace_name* vq_mxd_feature_layer_get_workspace_name(
    const vq_mxd_feature_layer* layer) {
  return api::to_handle<vq_mxd_workspace_name>(feature_layer_of(layer).workspace_name);
}

const vq_mxd_renderer* vq_mxd_feature_layer_get_renderer(const vq_mxd_feature_layer* layer) {
  return api::to_handle<vq_mxd_renderer>(feature_layer_of(layer).renderer.get());
}

const vq_mxd_coordinate_system* vq_mxd_feature_layer_get_coordinate_system(
    const vq_mxd_feature_layer* layer) {
  return api::to_handle<vq_mxd_coordinate_system>(feature_layer_of(layer).coordinate_system.get());
}

const vq_mxd_char* vq_mxd_basic_feature_class_name_get_name(
    const vq_mxd_basic_feature_class_name* name) {
  return feature_class_name_of(name).name.c_str();
}

const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name1(
    const vq_mxd_basic_feature_class_name* name) {
  return feature_class_name_of(name).type_name1.c_str();
}

const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name2(
    const vq_mxd_basic_feature_class_name* name) {
  return feature_class_name_of(name).type_name2.c_str();
}

uint32_t vq_mxd_basic_feature_class_name_get_geom_type(
    const vq_mxd_basic_feature_class_name* name) {
  return static_cast<uint32_t>(feature_class_name_of(name).geom_type);
}

const vq_mxd_char* vq_mxd_workspace_name_get_name(const vq_mxd_workspace_name* name) {
  return api::from_handle<Tmxd_workspace_name>(name).name.c_str();
}

const char* vq_mxd_coordinate_system_get_wkt(const vq_mxd_coordinate_system* system) {
  return api::from_handle<Tmxd_coordinate_system>(system).get_wkt();
}

}  // extern "C"
