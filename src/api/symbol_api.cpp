#include "api/handles.h"
#include "symbology/color.h"
#include "symbology/symbol.h"

using namespace mxd;

extern "C" {

uint8_t vq_mxd_symbol_get_enabled(const vq_mxd_symbol* symbol) {
  return api::from_handle<Tmxd_symbol>(symbol).enabled;
}

uint8_t vq_mxd_symbol_get_locked(const vq_mxd_symbol* symbol) {
  return api::from_handle<Tmxd_symbol>(symbol).locked;
}

const vq_mxd_char* vq_mxd_symbol_get_tag(const vq_mxd_symbol* symbol) {
  return api::from_handle<Tmxd_symbol>(symbol).tag.c_str();
}

int vq_mxd_color_get_dither_flag(const vq_mxd_color* color) {
  return api::from_handle<Tmxd_color>(color).get_dither_flag() ? 1 : 0;
}

int vq_mxd_color_get_no_use_flag(const vq_mxd_color* color) {
  return api::from_handle<Tmxd_color>(color).get_no_use_flag() ? 1 : 0;
}

int vq_mxd_color_get_rgb(const vq_mxd_color* color, uint8_t* red, uint8_t* green, uint8_t* blue) {
  return api::from_handle<Tmxd_color>(color).get_rgb(*red, *green, *blue);
}

}  // extern "C"
