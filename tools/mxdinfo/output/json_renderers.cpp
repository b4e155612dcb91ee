#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/output/json_parts.h"

namespace mxdinfo {

std::string dump_json(const Json& value, int indent) {
  const std::string text = value.dump(indent, ' ', false, Json::error_handler_t::replace);
  return escape_for_json(text);
}

Json text_or_null(std::string_view text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

std::string text_at(const Json& object, const char* key) {
  const auto found = object.is_object() ? object.find(key) : object.end();
  return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

void set_state(Json& source, const Source_state* state) {
  for (const char* key : {"state", "resolved_path", "missing_parts"}) source.erase(key);
  if (!state) return;
  source["state"] = presence_word(state->presence);
  source["resolved_path"] = text_or_null(state->path);
  source["missing_parts"] = state->missing_parts;
}

Json class_json(const Legend_entry& entry) {
  const std::string heading = entry.group ? utf8(entry.group->label) : std::string();
  return {{"heading", text_or_null(heading)},
          {"label", entry.label},
          {"symbol", symbol_json(entry.symbol)},
          {"all_other_values", entry.all_other_values},
          {"values", entry.values},
          {"min", entry.range ? Json(entry.range->min) : Json(nullptr)},
          {"max", entry.range ? Json(entry.range->max) : Json(nullptr)}};
}

Json renderer_json(const mxd::Tmxd_renderer* renderer, const mxd::Feature_facts& facts) {
  if (!renderer) return nullptr;
  const std::string divisor = utf8(facts.normalization_field.value_or(mxd::Wide_string()));
  return {{"kind", renderer_kind(*renderer)},
          {"fields", renderer_fields(*renderer)},
          {"normalization_field", text_or_null(divisor)},
          {"classes", Json::array()}};
}

}  // namespace mxdinfo
