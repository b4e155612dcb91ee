#include "mxdinfo/inventory/diff.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace mxdinfo {
namespace {

const Json& list_at(const Json& object, const char* key) {
  static const Json none = Json::array();
  const auto found = object.is_object() ? object.find(key) : object.end();
  return found != object.end() && found->is_array() ? *found : none;
}

// The path of the data, or its name and place.
std::string source_text(const Json& source) {
  std::string text = text_at(source, "path");
  if (!text.empty() || !source.is_object()) return text;
  for (const char* key : {"dataset", "feature_dataset", "workspace"}) {
    const std::string part = text_at(source, key);
    if (!part.empty()) text += (text.empty() ? "" : " in ") + part;
  }
  return text;
}

Json difference(const std::string& part, const std::string& at, const Json& before,
                const Json& after) {
  return {{"part", part}, {"at", text_or_null(at)}, {"old", before}, {"new", after}};
}

// Compares the members of objects and lists one by one, so that a difference is as small as it can
// be shown.
class Comparison {
 public:
  explicit Comparison(std::string part) : part_(std::move(part)) {}

  void compare(const std::string& at, const Json& before, const Json& after) {
    if (before == after) return;
    if (before.is_object() && after.is_object()) {
      compare_objects(at, before, after);
    } else if (before.is_array() && after.is_array() && before.size() == after.size()) {
      for (std::size_t i = 0; i < before.size(); ++i) {
        compare(at + "[" + std::to_string(i) + "]", before[i], after[i]);
      }
    } else {
      differences_.push_back(difference(part_, at, before, after));
    }
  }
  Json take() { return std::move(differences_); }

 private:
  void compare_objects(const std::string& at, const Json& before, const Json& after) {
    const std::string prefix = at.empty() ? "" : at + ".";
    for (const auto& [key, value] : before.items()) {
      const Json later = after.value(key, Json());
      if (key == "classes" && value.is_array() && later.is_array()) {
        compare_classes(at, value, later);
      } else {
        compare(prefix + key, value, later);
      }
    }
    for (const auto& [key, value] : after.items()) {
      if (!before.contains(key)) compare(prefix + key, Json(), value);
    }
  }

  static std::vector<std::string> class_names(const Json& classes) {
    std::map<std::string, int> seen;
    std::vector<std::string> names;
    for (const Json& item : classes) {
      std::string name = text_at(item, "label");
      const std::string heading = text_at(item, "heading");
      if (!heading.empty()) name = fmt::format("{} / {}", heading, name);
      if (const int before = seen[name]++) name += fmt::format(" ({})", before + 1);
      names.push_back('"' + name + '"');
    }
    return names;
  }

  // Classes of a legend, by their headings and labels.
  void compare_classes(const std::string& at, const Json& before, const Json& after) {
    const std::string prefix = at.empty() ? "" : at + ".";
    const auto old_names = class_names(before);
    const auto new_names = class_names(after);
    std::map<std::string, const Json*> later;
    for (std::size_t i = 0; i < after.size(); ++i) later[new_names[i]] = &after[i];
    const std::set<std::string> earlier(old_names.begin(), old_names.end());
    for (std::size_t i = 0; i < before.size(); ++i) {
      const auto found = later.find(old_names[i]);
      compare(prefix + old_names[i], before[i], found == later.end() ? Json() : *found->second);
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (!earlier.contains(new_names[i])) compare(prefix + new_names[i], Json(), after[i]);
    }
  }

  std::string part_;
  Json differences_ = Json::array();
};

std::string part_name(std::string key) {
  constexpr std::array<std::pair<std::string_view, const char*>, 5> names{{
      {"renderer", "symbology"},
      {"definition_query", "query"},
      {"visible", "visibility"},
      {"min_scale", "minimum scale"},
      {"max_scale", "maximum scale"},
  }};
  for (const auto& [name, words] : names) {
    if (key == name) return words;
  }
  std::replace(key.begin(), key.end(), '_', ' ');
  return key;
}

// What a map or layer is compared by; its place and its members are not.
bool is_compared(const std::string& key) {
  constexpr std::array<std::string_view, 5> others{"name", "parent", "kind_in_words", "extent",
                                                   "layers"};
  return std::find(others.begin(), others.end(), key) == others.end();
}

// Where the data is said to be, and whether it is there if both inventories say so.
void add_source_differences(Json& differences, Json before, Json after) {
  const std::string old_state = text_at(before, "state");
  const std::string new_state = text_at(after, "state");
  for (Json* source : {&before, &after}) {
    if (source->is_object()) set_state(*source, nullptr);
  }
  if (before != after) {
    differences.push_back(difference("source", "", source_text(before), source_text(after)));
  }
  if (old_state != new_state && !old_state.empty() && !new_state.empty()) {
    differences.push_back(difference("data", "", old_state, new_state));
  }
}

Json differences_of(const Json& before, const Json& after) {
  Json differences = Json::array();
  for (const auto& [key, value] : before.items()) {
    const Json later = after.value(key, Json());
    if (!is_compared(key) || value == later) continue;
    if (key == "source") {
      add_source_differences(differences, value, later);
      continue;
    }
    Comparison comparison(part_name(key));
    comparison.compare("", value, later);
    for (Json& each : comparison.take()) differences.push_back(std::move(each));
  }
  return differences;
}

struct Item {
  std::string map;
  // Nothing for the map itself.
  std::optional<std::string> layer;
  const Json* value;
};

using Items = std::vector<std::pair<std::string, Item>>;

// Layers by their paths in the map, in the document's order.
std::vector<std::string> layer_paths(const Json& layers) {
  std::vector<std::string> paths;
  for (const Json& layer : layers) {
    const auto parent = layer.find("parent");
    const bool inside = parent != layer.end() && parent->is_number_unsigned() &&
                        parent->get<std::size_t>() < paths.size();
    const std::string prefix = inside ? paths[parent->get<std::size_t>()] + " / " : "";
    paths.push_back(prefix + text_at(layer, "name"));
  }
  return paths;
}

// With keys that are unique within the document.
Items items_of(const Json& document) {
  Items items;
  std::map<std::string, int> seen;
  const auto add = [&](const Item& item) {
    const std::string key = item.map + '\0' + (item.layer ? '/' + *item.layer : "");
    items.emplace_back(key + '\0' + std::to_string(seen[key]++), item);
  };
  for (const Json& map : list_at(document, "maps")) {
    const std::string name = text_at(map, "name");
    add({name, std::nullopt, &map});
    const Json& layers = list_at(map, "layers");
    const auto paths = layer_paths(layers);
    for (std::size_t i = 0; i < layers.size(); ++i) add({name, paths[i], &layers[i]});
  }
  return items;
}

Json item_json(const Item& item, const char* change, Json differences = Json::array()) {
  const auto source = item.value->find("source");
  return {{"map", item.map},
          {"layer", item.layer ? Json(*item.layer) : Json()},
          {"change", change},
          {"source", source == item.value->end() ? Json() : text_or_null(source_text(*source))},
          {"differences", std::move(differences)}};
}

std::set<std::string> sources_of(const Items& items) {
  std::set<std::string> sources;
  for (const auto& [key, item] : items) {
    const auto source = item.value->find("source");
    if (source != item.value->end()) sources.insert(source_text(*source));
  }
  sources.erase("");
  return sources;
}

Json without(const std::set<std::string>& these, const std::set<std::string>& those) {
  Json left = Json::array();
  for (const std::string& each : these) {
    if (!those.contains(each)) left.push_back(each);
  }
  return left;
}

}  // namespace

Json diff_of(const Json& old_document, const Json& new_document) {
  const Items before = items_of(old_document);
  const Items after = items_of(new_document);
  const std::map<std::string, Item> later(after.begin(), after.end());
  std::set<std::string> earlier;
  Json items = Json::array();
  for (const auto& [key, item] : before) {
    earlier.insert(key);
    const auto found = later.find(key);
    if (found == later.end()) {
      items.push_back(item_json(item, "removed"));
      continue;
    }
    Json differences = differences_of(*item.value, *found->second.value);
    if (differences.empty()) continue;
    items.push_back(item_json(found->second, "changed", std::move(differences)));
  }
  for (const auto& [key, item] : after) {
    if (!earlier.contains(key)) items.push_back(item_json(item, "added"));
  }
  const auto old_sources = sources_of(before);
  const auto new_sources = sources_of(after);
  return {{"sources",
           {{"added", without(new_sources, old_sources)},
            {"removed", without(old_sources, new_sources)}}},
          {"items", std::move(items)}};
}

bool is_empty_diff(const Json& diff) {
  return diff["items"].empty() && diff["sources"]["added"].empty() &&
         diff["sources"]["removed"].empty();
}

}  // namespace mxdinfo
