#include "api/handles.h"
#include "symbology/fill_symbols.h"

using namespace mxd;

extern "C" {

const vq_mxd_color* vq_mxd_simple_fill_symbol_get_color(const vq_mxd_simple_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_simple_fill_symbol>(symbol).color_slot.get());
}

const vq_mxd_symbol* vq_mxd_simple_fill_symbol_get_outline(
    const vq_mxd_simple_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_simple_fill_symbol>(symbol).outline.get());
}

const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_pattern(const vq_mxd_line_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_line_fill_symbol>(symbol).pattern.get());
}

const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_outline(const vq_mxd_line_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_line_fill_symbol>(symbol).outline.get());
}

double vq_mxd_line_fill_symbol_get_angle(const vq_mxd_line_fill_symbol* symbol) {
  return api::from_handle<Tmxd_line_fill_symbol>(symbol).angle;
}

double vq_mxd_line_fill_symbol_get_offset(const vq_mxd_line_fill_symbol* symbol) {
  return api::from_handle<Tmxd_line_fill_symbol>(symbol).offset;
}

double vq_mxd_line_fill_symbol_get_separation(const vq_mxd_line_fill_symbol* symbol) {
  return api::from_handle<Tmxd_line_fill_symbol>(symbol).separation;
}

const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_marker(const vq_mxd_marker_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_marker_fill_symbol>(symbol).marker_slot.get());
}

const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_outline(
    const vq_mxd_marker_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_marker_fill_symbol>(symbol).outline_slot.get());
}

double vq_mxd_marker_fill_symbol_get_offset_x(const vq_mxd_marker_fill_symbol* symbol) {
  return api::from_handle<Tmxd_marker_fill_symbol>(symbol).offset_x;
}

double vq_mxd_marker_fill_symbol_get_offset_y(const vq_mxd_marker_fill_symbol* symbol) {
  return api::from_handle<Tmxd_marker_fill_symbol>(symbol).offset_y;
}

double vq_mxd_marker_fill_symbol_get_separation_x(const vq_mxd_marker_fill_symbol* symbol) {
  return api::from_handle<Tmxd_marker_fill_symbol>(symbol).separation_x;
}

double vq_mxd_marker_fill_symbol_get_separation_y(const vq_mxd_marker_fill_symbol* symbol) {
  return api::from_handle<Tmxd_marker_fill_symbol>(symbol).separation_y;
}

uint32_t vq_mxd_marker_fill_symbol_get_random(const vq_mxd_marker_fill_symbol* symbol) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_marker_fill_symbol>(symbol).random);
}

const vq_mxd_fill_symbols* vq_mxd_multilayer_fill_symbol_get_fill_symbols(
    const vq_mxd_multilayer_fill_symbol* symbol) {
  return api::to_handle<vq_mxd_fill_symbols>(
      api::from_handle<Tmxd_multilayer_fill_symbol>(symbol).fill_symbols);
}

int64_t vq_mxd_fill_symbols_get_size(const vq_mxd_fill_symbols* symbols) {
  return api::list_size<Tmxd_fill_symbol>(symbols);
}

const vq_mxd_symbol* vq_mxd_fill_symbols_get(const vq_mxd_fill_symbols* symbols, int32_t index) {
  return api::list_item<Tmxd_fill_symbol, vq_mxd_symbol>(symbols, index);
}

}  // extern "C"
