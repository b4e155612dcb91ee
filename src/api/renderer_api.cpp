#include "api/handles.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

using namespace mxd;

extern "C" {

const vq_mxd_symbol* vq_mxd_simple_renderer_get_symbol(const vq_mxd_simple_renderer* renderer) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_simple_renderer>(renderer).symbol_slot.get());
}

const vq_mxd_legend_group* vq_mxd_simple_renderer_get_legend_group(
    const vq_mxd_simple_renderer* renderer) {
  return api::to_handle<vq_mxd_legend_group>(
      api::from_handle<Tmxd_simple_renderer>(renderer).legend_group);
}

uint32_t vq_mxd_unique_value_renderer_get_propname_count(
    const vq_mxd_unique_value_renderer* renderer) {
  return static_cast<uint32_t>(
      api::from_handle<Tmxd_unique_value_renderer>(renderer).propname_count);
}

const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname1(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::from_handle<Tmxd_unique_value_renderer>(renderer).propname1.c_str();
}

const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname2(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::from_handle<Tmxd_unique_value_renderer>(renderer).propname2.c_str();
}

const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname3(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::from_handle<Tmxd_unique_value_renderer>(renderer).propname3.c_str();
}

const vq_mxd_symbol* vq_mxd_unique_value_renderer_get_symbol(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_unique_value_renderer>(renderer).symbol_slot.get());
}

const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_other_leg_grp(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::to_handle<vq_mxd_legend_group>(
      api::from_handle<Tmxd_unique_value_renderer>(renderer).other_leg_grp);
}

const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_main_leg_grp(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::to_handle<vq_mxd_legend_group>(
      api::from_handle<Tmxd_unique_value_renderer>(renderer).main_leg_grp);
}

const vq_mxd_unique_values* vq_mxd_unique_value_renderer_get_unique_values(
    const vq_mxd_unique_value_renderer* renderer) {
  return api::to_handle<vq_mxd_unique_values>(
      api::from_handle<Tmxd_unique_value_renderer>(renderer).unique_values);
}

int64_t vq_mxd_unique_values_get_size(const vq_mxd_unique_values* values) {
  return static_cast<std::int64_t>(api::from_handle<Tmxd_unique_values>(values).size());
}

const vq_mxd_unique_value* vq_mxd_unique_values_get(const vq_mxd_unique_values* values,
                                                    int32_t index) {
  return api::item_at<vq_mxd_unique_value>(api::from_handle<Tmxd_unique_values>(values), index);
}

const vq_mxd_char* vq_mxd_unique_value_get_str(const vq_mxd_unique_value* value) {
  return api::from_handle<Tmxd_unique_value>(value).wstr.c_str();
}

uint32_t vq_mxd_unique_value_get_int1(const vq_mxd_unique_value* value) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_unique_value>(value).int1);
}

uint32_t vq_mxd_unique_value_get_int2(const vq_mxd_unique_value* value) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_unique_value>(value).int2);
}

uint32_t vq_mxd_unique_value_get_int3(const vq_mxd_unique_value* value) {
  return static_cast<uint32_t>(api::from_handle<Tmxd_unique_value>(value).int3);
}

const vq_mxd_char* vq_mxd_class_breaks_renderer_get_propname(
    const vq_mxd_class_breaks_renderer* renderer) {
  return api::from_handle<Tmxd_class_breaks_renderer>(renderer).propname.c_str();
}

const vq_mxd_ranges* vq_mxd_class_breaks_renderer_get_ranges(
    const vq_mxd_class_breaks_renderer* renderer) {
  return api::to_handle<vq_mxd_ranges>(
      api::from_handle<Tmxd_class_breaks_renderer>(renderer).ranges);
}

const vq_mxd_legend_group* vq_mxd_class_breaks_renderer_get_main_leg_grp(
    const vq_mxd_class_breaks_renderer* renderer) {
  return api::to_handle<vq_mxd_legend_group>(
      api::from_handle<Tmxd_class_breaks_renderer>(renderer).main_leg_grp);
}

int32_t vq_mxd_ranges_get_size(const vq_mxd_ranges* ranges) {
  return api::from_handle<Tmxd_ranges>(ranges).size();
}

double vq_mxd_ranges_get_min_bnd(const vq_mxd_ranges* ranges, int32_t index) {
  return api::from_handle<Tmxd_ranges>(ranges).min_bnd(index);
}

double vq_mxd_ranges_get_max_bnd(const vq_mxd_ranges* ranges, int32_t index) {
  return api::from_handle<Tmxd_ranges>(ranges).max_bnd(index);
}

const vq_mxd_char* vq_mxd_legend_group_get_label(const vq_mxd_legend_group* group) {
  return api::from_handle<Tmxd_legend_group>(group).label.c_str();
}

int64_t vq_mxd_legend_group_get_size(const vq_mxd_legend_group* group) {
  return static_cast<int64_t>(api::from_handle<Tmxd_legend_group>(group).legend_classes.size());
}

const vq_mxd_legend_class* vq_mxd_legend_group_get(const vq_mxd_legend_group* group,
                                                   int32_t index) {
  return api::item_at<vq_mxd_legend_class>(
      api::from_handle<Tmxd_legend_group>(group).legend_classes, index);
}

const vq_mxd_char* vq_mxd_legend_class_get_label(const vq_mxd_legend_class* legend_class) {
  return api::from_handle<Tmxd_legend_class>(legend_class).label.c_str();
}

const vq_mxd_symbol* vq_mxd_legend_class_get_symbol(const vq_mxd_legend_class* legend_class) {
  return api::to_handle<vq_mxd_symbol>(
      api::from_handle<Tmxd_legend_class>(legend_class).symbol_slot.get());
}

}  // extern "C"
