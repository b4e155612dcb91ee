#include "api/handles.h"
#include "symbology/marker_symbols.h"

using namespace mxd;

extern "C" {

const char* vq_mxd_font_get_font_name(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).font_name.c_str();
}

double vq_mxd_font_get_size(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).size_in_points();
}

uint16_t vq_mxd_font_get_weight(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).weight;
}

uint16_t vq_mxd_font_get_charset(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).charset;
}

int vq_mxd_font_get_italic(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).italic() ? 1 : 0;
}

int vq_mxd_font_get_underline(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).underline() ? 1 : 0;
}

int vq_mxd_font_get_strikethrough(const vq_mxd_font* font) {
  return api::from_handle<Tmxd_font>(font).strikethrough() ? 1 : 0;
}

uint32_t vq_mxd_char_marker_symbol_get_unicode(const vq_mxd_char_marker_symbol* symbol) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_char_marker_symbol>(symbol).unicode);
}

double vq_mxd_char_marker_symbol_get_size(const vq_mxd_char_marker_symbol* symbol) {
  return api::from_handle<Tmxd_char_marker_symbol>(symbol).size;
}

double vq_mxd_char_marker_symbol_get_angle(const vq_mxd_char_marker_symbol* symbol) {
  return api::from_handle<Tmxd_char_marker_symbol>(symbol).angle;
}

double vq_mxd_char_marker_symbol_get_x_offset(const vq_mxd_char_marker_symbol* symbol) {
  return api::from_handle<Tmxd_char_marker_symbol>(symbol).x_offset;
}

double vq_mxd_char_marker_symbol_get_y_offset(const vq_mxd_char_marker_symbol* symbol) {
  return api::from_handle<Tmxd_char_marker_symbol>(symbol).y_offset;
}

const vq_mxd_color* vq_mxd_char_marker_symbol_get_color(const vq_mxd_char_marker_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_char_marker_symbol>(symbol).color_slot.get());
}

const vq_mxd_char* vq_mxd_char_marker_symbol_get_font_name(
    const vq_mxd_char_marker_symbol* symbol) {
  return api::from_handle<Tmxd_char_marker_symbol>(symbol).font_name.c_str();
}

const vq_mxd_font* vq_mxd_char_marker_symbol_get_font(const vq_mxd_char_marker_symbol* symbol) {
  return api::to_handle<vq_mxd_font>(api::from_handle<Tmxd_char_marker_symbol>(symbol).font);
}

uint32_t vq_mxd_simple_marker_symbol_get_simple_marker_style(
    const vq_mxd_simple_marker_symbol* symbol) {
  return static_cast<uint32_t>(
      api::from_handle<Tmxd_simple_marker_symbol>(symbol).simple_marker_style);
}

double vq_mxd_simple_marker_symbol_get_size(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).size;
}

double vq_mxd_simple_marker_symbol_get_angle(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).angle;
}

double vq_mxd_simple_marker_symbol_get_x_offset(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).x_offset;
}

double vq_mxd_simple_marker_symbol_get_y_offset(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).y_offset;
}

const vq_mxd_color* vq_mxd_simple_marker_symbol_get_color(
    const vq_mxd_simple_marker_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_simple_marker_symbol>(symbol).color.get());
}

uint8_t vq_mxd_simple_marker_symbol_get_outline_flag(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).outline_flag;
}

double vq_mxd_simple_marker_symbol_get_outline_width(const vq_mxd_simple_marker_symbol* symbol) {
  return api::from_handle<Tmxd_simple_marker_symbol>(symbol).outline_width;
}

const vq_mxd_color* vq_mxd_simple_marker_symbol_get_outline_color(
    const vq_mxd_simple_marker_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_simple_marker_symbol>(symbol).outline_color.get());
}

const vq_mxd_marker_symbols* vq_mxd_multilayer_marker_symbol_get_marker_symbols(
    const vq_mxd_multilayer_marker_symbol* symbol) {
  return api::to_handle<vq_mxd_marker_symbols>(
      api::from_handle<Tmxd_multilayer_marker_symbol>(symbol).marker_symbols);
}

int64_t vq_mxd_marker_symbols_get_size(const vq_mxd_marker_symbols* symbols) {
  return api::list_size<Tmxd_marker_symbol>(symbols);
}

const vq_mxd_symbol* vq_mxd_marker_symbols_get(const vq_mxd_marker_symbols* symbols,
                                               int32_t index) {
  return api::list_item<Tmxd_marker_symbol, vq_mxd_symbol>(symbols, index);
}

}  // extern "C"
