#include "api/handles.h"
#include "symbology/line_symbols.h"

using namespace mxd;

extern "C" {

double vq_mxd_line_template_get_pattern_interval(const vq_mxd_line_template* line_template) {
  return api::from_handle<Tmxd_line_template>(line_template).pattern_interval;
}

int64_t vq_mxd_line_template_get_size(const vq_mxd_line_template* line_template) {
  return static_cast<int64_t>(api::from_handle<Tmxd_line_template>(line_template).items.size());
}

const vq_mxd_line_template_item* vq_mxd_line_template_get(const vq_mxd_line_template* line_template,
                                                          int32_t index) {
  const auto& items = api::from_handle<Tmxd_line_template>(line_template).items;
  if (index < 0 || static_cast<std::size_t>(index) >= items.size()) return nullptr;
  return api::to_handle<vq_mxd_line_template_item>(items[static_cast<std::size_t>(index)]);
}

double vq_mxd_line_template_item_get_filled_squares(const vq_mxd_line_template_item* item) {
  return api::from_handle<Tmxd_line_template_item>(item).filled;
}

double vq_mxd_line_template_item_get_empty_squares(const vq_mxd_line_template_item* item) {
  return api::from_handle<Tmxd_line_template_item>(item).empty;
}

const vq_mxd_color* vq_mxd_simple_line_symbol_get_color(const vq_mxd_simple_line_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_simple_line_symbol>(symbol).color_slot.get());
}

double vq_mxd_simple_line_symbol_get_width(const vq_mxd_simple_line_symbol* symbol) {
  return api::from_handle<Tmxd_simple_line_symbol>(symbol).width;
}

uint32_t vq_mxd_simple_line_symbol_get_simple_line_style(const vq_mxd_simple_line_symbol* symbol) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_simple_line_symbol>(symbol).line_type);
}

const vq_mxd_color* vq_mxd_cartographic_line_symbol_get_color(
    const vq_mxd_cartographic_line_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_cartographic_line_symbol>(symbol).color_slot.get());
}

double vq_mxd_cartographic_line_symbol_get_width(const vq_mxd_cartographic_line_symbol* symbol) {
  return api::from_handle<Tmxd_cartographic_line_symbol>(symbol).width;
}

double vq_mxd_cartographic_line_symbol_get_offset(const vq_mxd_cartographic_line_symbol* symbol) {
  return api::from_handle<Tmxd_cartographic_line_symbol>(symbol).offset;
}

const vq_mxd_line_template* vq_mxd_cartographic_line_symbol_get_line_template(
    const vq_mxd_cartographic_line_symbol* symbol) {
  return api::to_handle<vq_mxd_line_template>(
      api::from_handle<Tmxd_cartographic_line_symbol>(symbol).line_template);
}

const vq_mxd_color* vq_mxd_hash_line_symbol_get_color(const vq_mxd_hash_line_symbol* symbol) {
  return api::to_handle<vq_mxd_color>(
      api::from_handle<Tmxd_hash_line_symbol>(symbol).color_slot.get());
}

double vq_mxd_hash_line_symbol_get_width(const vq_mxd_hash_line_symbol* symbol) {
  return api::from_handle<Tmxd_hash_line_symbol>(symbol).width;
}

double vq_mxd_hash_line_symbol_get_angle(const vq_mxd_hash_line_symbol* symbol) {
  return api::from_handle<Tmxd_hash_line_symbol>(symbol).angle;
}

double vq_mxd_hash_line_symbol_get_offset(const vq_mxd_hash_line_symbol* symbol) {
  return api::from_handle<Tmxd_hash_line_symbol>(symbol).offset;
}

const vq_mxd_symbol* vq_mxd_hash_line_symbol_get_line(const vq_mxd_hash_line_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_hash_line_symbol>(symbol).line_slot.get());
}

const vq_mxd_line_template* vq_mxd_hash_line_symbol_get_line_template(
    const vq_mxd_hash_line_symbol* symbol) {
  return api::to_handle<vq_mxd_line_template>(
      api::from_handle<Tmxd_hash_line_symbol>(symbol).line_template);
}

double vq_mxd_marker_line_symbol_get_offset(const vq_mxd_marker_line_symbol* symbol) {
  return api::from_handle<Tmxd_marker_line_symbol>(symbol).offset;
}

const vq_mxd_symbol* vq_mxd_marker_line_symbol_get_pattern_marker(
    const vq_mxd_marker_line_symbol* symbol) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_marker_line_symbol>(symbol).pattern_marker.get());
}

const vq_mxd_line_template* vq_mxd_marker_line_symbol_get_line_template(
    const vq_mxd_marker_line_symbol* symbol) {
  return api::to_handle<vq_mxd_line_template>(
      api::from_handle<Tmxd_marker_line_symbol>(symbol).line_template);
}

const vq_mxd_line_symbols* vq_mxd_multilayer_line_symbol_get_line_symbols(
    const vq_mxd_multilayer_line_symbol* symbol) {
  return api::to_handle<vq_mxd_line_symbols>(
      api::from_handle<Tmxd_multilayer_line_symbol>(symbol).line_symbols);
}

int64_t vq_mxd_line_symbols_get_size(const vq_mxd_line_symbols* symbols) {
  return api::list_size<Tmxd_line_symbol>(symbols);
}

const vq_mxd_symbol* vq_mxd_line_symbols_get(const vq_mxd_line_symbols* symbols, int32_t index) {
  const auto& list = api::from_handle<Object_list<Tmxd_line_symbol>>(symbols);
  if (index >= api::list_size<Tmxd_line_symbol>(symbols)) return nullptr;
  return api::to_handle<vq_mxd_symbol>(list[static_cast<std::size_t>(index)]);
}

}  // extern "C"
