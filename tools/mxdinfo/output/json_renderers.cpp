#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/output/json_parts.h"

namespace mxdinfo {
namespace {

Json class_json(const Legend_entry& entry) {
  return {{"heading", text_or_null(entry.heading)},
          {"label", entry.label},
          {"symbol", symbol_json(entry.symbol)},
          {"all_other_values", entry.all_other_values},
          {"values", entry.values},
          {"min", entry.range ? Json(entry.range->min) : Json(nullptr)},
          {"max", entry.range ? Json(entry.range->max) : Json(nullptr)}};
}

}  // namespace

Json text_or_null(std::string_view text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

Json text_or_null(const std::optional<mxd::Wide_string>& text) {
  return text ? text_or_null(utf8(*text)) : Json(nullptr);
}

Json renderer_json(const mxd::Tmxd_renderer* renderer, const mxd::Feature_facts& facts) {
  if (!renderer) return nullptr;
  const bool ascending = facts.classes_ascend.value_or(true);
  const auto order = ascending ? Class_order::ascending : Class_order::descending;
  Json classes = Json::array();
  for (const Legend_entry& entry : legend_entries(*renderer, order)) {
    classes.push_back(class_json(entry));
  }
  return {{"kind", renderer_kind(*renderer)},
          {"fields", renderer_fields(*renderer)},
          {"normalization_field", text_or_null(facts.normalization_field)},
          {"classes", std::move(classes)}};
}

}  // namespace mxdinfo
