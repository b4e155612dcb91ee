#include "api/handles.h"
#include "document/mxd.h"

using namespace mxd;

namespace {

Tmxd_mxd& document(vq_mxd_mxd* handle) {
  return *reinterpret_cast<Tmxd_mxd*>(handle);
}

const Tmxd_mxd& document(const vq_mxd_mxd* handle) {
  return *reinterpret_cast<const Tmxd_mxd*>(handle);
}

}  // namespace

extern "C" {

vq_mxd_mxd* vq_mxd_mxd_create(void) {
  try {
    return reinterpret_cast<vq_mxd_mxd*>(new Tmxd_mxd);
  } catch (...) {
    return nullptr;
  }
}

void vq_mxd_mxd_destroy(vq_mxd_mxd* document_handle) {
  delete reinterpret_cast<Tmxd_mxd*>(document_handle);
}

int vq_mxd_mxd_load(vq_mxd_mxd* document_handle, const vq_mxd_char* path) {
  // No exception may reach the host. Running out of memory is a failed load.
  try {
    File_error_reporter reporter(stdout);
    return document(document_handle).load(path, reporter) ? 1 : 0;
  } catch (...) {
    document(document_handle).clear();
    return 0;
  }
}

int vq_mxd_mxd_save_xml(const vq_mxd_mxd* document_handle, const vq_mxd_char* path) {
  try {
    return document(document_handle).save_xml(path) ? 1 : 0;
  } catch (...) {
    return 0;
  }
}

const vq_mxd_maps* vq_mxd_mxd_get_maps(const vq_mxd_mxd* document_handle) {
  return api::to_handle<vq_mxd_maps>(document(document_handle).maps);
}

int64_t vq_mxd_maps_get_size(const vq_mxd_maps* maps) {
  return api::list_size<Tmxd_map>(maps);
}

const vq_mxd_map* vq_mxd_maps_get(const vq_mxd_maps* maps, int32_t index) {
  const auto& list = api::from_handle<Tmxd_maps>(maps);
  return api::to_handle<vq_mxd_map>(list[static_cast<std::size_t>(index)]);
}

const vq_mxd_char* vq_mxd_map_get_name(const vq_mxd_map* map) {
  return api::from_handle<Tmxd_map>(map).name.c_str();
}

const vq_mxd_layers* vq_mxd_map_get_layers(const vq_mxd_map* map) {
  return api::to_handle<vq_mxd_layers>(api::from_handle<Tmxd_map>(map).layers);
}

const vq_mxd_coordinate_system* vq_mxd_map_get_coordinate_system(const vq_mxd_map* map) {
  return api::to_handle<vq_mxd_coordinate_system>(
      api::from_handle<Tmxd_map>(map).coordinate_system.get());
}

}  // extern "C"
