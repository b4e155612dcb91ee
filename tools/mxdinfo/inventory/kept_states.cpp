#include "mxdinfo/inventory/kept_states.h"

#include <optional>

#include "mxdinfo/output/json_parts.h"
#include "mxdinfo/sources/check_sources.h"

namespace mxdinfo {
namespace {

// The ends of keys. Within a text their quotes would be escaped. The objects hold no others.
constexpr std::string_view source_key = "source\":{";
constexpr std::string_view saved_key = "last_saved\":{";
constexpr std::string_view state_key = "resolved_path\":";

std::size_t object_end(std::string_view line, std::size_t begin) {
  bool in_text = false;
  for (std::size_t at = begin; at < line.size(); ++at) {
    const char c = line[at];
    if (c == '\\') {
      ++at;
    } else if (c == '"') {
      in_text = !in_text;
    } else if (c == '}' && !in_text) {
      return at + 1;
    }
  }
  return line.size();
}

Json object_at(std::string_view line, std::size_t begin) {
  return Json::parse(line.substr(begin, object_end(line, begin) - begin), nullptr, false);
}

std::string saved_path_of(std::string_view line) {
  const std::size_t key = line.find(saved_key);
  return key == line.npos ? "" : text_at(object_at(line, key + saved_key.size() - 1), "path");
}

Source_state state_now(const Json& source, const Source_places& places,
                       const Document_place& document) {
  return state_of(
      {text_at(source, "kind"), text_at(source, "workspace"), text_at(source, "feature_dataset"),
       text_at(source, "dataset"), text_at(source, "path")},
      places, document);
}

}  // namespace

std::string with_states(std::string_view line, const std::string& document,
                        const Source_places* places) {
  if (!places && line.find(state_key) == line.npos) return std::string(line);
  const Document_place place = place_of(document, saved_path_of(line));
  std::string text;
  for (std::size_t key = line.find(source_key); key != line.npos; key = line.find(source_key)) {
    const std::size_t begin = key + source_key.size() - 1;
    const std::size_t end = object_end(line, begin);
    Json source = object_at(line, begin);
    if (source.is_object()) {
      const auto state = places ? std::optional(state_now(source, *places, place)) : std::nullopt;
      set_state(source, state ? &*state : nullptr);
      text.append(line.substr(0, begin)).append(dump_json(source, -1));
    } else {
      text.append(line.substr(0, end));
    }
    line.remove_prefix(end);
  }
  return text += line;
}

}  // namespace mxdinfo
