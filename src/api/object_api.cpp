#include <string_view>

#include "api/handles.h"

using namespace mxd;

namespace {

// The handle as one of the concrete class, or null if the object is of another class.
template <class Handle, class Base>
const Handle* cast(const Base* handle, std::string_view type_name) {
  if (!handle || api::from_handle<Tmxd_obj>(handle).type_name() != type_name) return nullptr;
  return reinterpret_cast<const Handle*>(handle);
}

}  // namespace

extern "C" {

int vq_mxd_obj_get_exists(const vq_mxd_obj* object) {
  return api::from_handle<Tmxd_obj>(object).exists;
}

int vq_mxd_obj_get_repeat(const vq_mxd_obj* object) {
  return api::from_handle<Tmxd_obj>(object).repeat;
}

unsigned int vq_mxd_obj_get_number(const vq_mxd_obj* object) {
  return api::from_handle<Tmxd_obj>(object).number;
}

const char* vq_mxd_obj_get_type_str(const vq_mxd_obj* object) {
  return api::from_handle<Tmxd_obj>(object).type_str();
}

const vq_mxd_char_marker_symbol* vq_mxd_symbol_cast_char_marker(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_char_marker_symbol>(symbol, "mxd_char_marker_symbol");
}

const vq_mxd_multilayer_marker_symbol* vq_mxd_symbol_cast_multilayer_marker(
    const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_multilayer_marker_symbol>(symbol, "mxd_multilayer_marker_symbol");
}

const vq_mxd_simple_marker_symbol* vq_mxd_symbol_cast_simple_marker(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_simple_marker_symbol>(symbol, "mxd_simple_marker_symbol");
}

const vq_mxd_cartographic_line_symbol* vq_mxd_symbol_cast_cartographic_line(
    const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_cartographic_line_symbol>(symbol, "mxd_cartographic_line_symbol");
}

const vq_mxd_hash_line_symbol* vq_mxd_symbol_cast_hash_line(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_hash_line_symbol>(symbol, "mxd_hash_line_symbol");
}

const vq_mxd_marker_line_symbol* vq_mxd_symbol_cast_marker_line(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_marker_line_symbol>(symbol, "mxd_marker_line_symbol");
}

const vq_mxd_multilayer_line_symbol* vq_mxd_symbol_cast_multilayer_line(
    const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_multilayer_line_symbol>(symbol, "mxd_multilayer_line_symbol");
}

const vq_mxd_simple_line_symbol* vq_mxd_symbol_cast_simple_line(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_simple_line_symbol>(symbol, "mxd_simple_line_symbol");
}

const vq_mxd_line_fill_symbol* vq_mxd_symbol_cast_line_fill(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_line_fill_symbol>(symbol, "mxd_line_fill_symbol");
}

const vq_mxd_marker_fill_symbol* vq_mxd_symbol_cast_marker_fill(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_marker_fill_symbol>(symbol, "mxd_marker_fill_symbol");
}

const vq_mxd_multilayer_fill_symbol* vq_mxd_symbol_cast_multilayer_fill(
    const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_multilayer_fill_symbol>(symbol, "mxd_multilayer_fill_symbol");
}

const vq_mxd_simple_fill_symbol* vq_mxd_symbol_cast_simple_fill(const vq_mxd_symbol* symbol) {
  return cast<vq_mxd_simple_fill_symbol>(symbol, "mxd_simple_fill_symbol");
}

const vq_mxd_group_layer* vq_mxd_layer_cast_group_layer(const vq_mxd_layer* layer) {
  return cast<vq_mxd_group_layer>(layer, "mxd_group_layer");
}

const vq_mxd_feature_layer* vq_mxd_layer_cast_feature_layer(const vq_mxd_layer* layer) {
  return cast<vq_mxd_feature_layer>(layer, "mxd_feature_layer");
}

const vq_mxd_simple_renderer* vq_mxd_renderer_cast_simple_renderer(
    const vq_mxd_renderer* renderer) {
  return cast<vq_mxd_simple_renderer>(renderer, "mxd_simple_renderer");
}

const vq_mxd_unique_value_renderer* vq_mxd_renderer_cast_unique_value_renderer(
    const vq_mxd_renderer* renderer) {
  return cast<vq_mxd_unique_value_renderer>(renderer, "mxd_unique_value_renderer");
}

const vq_mxd_class_breaks_renderer* vq_mxd_renderer_cast_class_breaks_renderer(
    const vq_mxd_renderer* renderer) {
  return cast<vq_mxd_class_breaks_renderer>(renderer, "mxd_class_breaks_renderer");
}

}  // extern "C"
