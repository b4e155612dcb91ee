#include "mxdinfo/facts/facts.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "mxdinfo/facts/display_text.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr std::size_t max_shown_depth = 40;

// The open groups, each with the number of members that are still to come.
class Group_nesting {
 public:
  std::vector<const Tmxd_group_layer*> groups() const {
    std::vector<const Tmxd_group_layer*> shown;
    for (std::size_t i = 0; i < std::min(open_.size(), max_shown_depth); ++i) {
      shown.push_back(open_[i].group);
    }
    return shown;
  }

  void passed(const Tmxd_layer& layer) {
    if (!open_.empty()) --open_.back().left;
    if (const auto* group = dynamic_cast<const Tmxd_group_layer*>(&layer)) {
      open_.push_back({group, group->layer_count});
    }
    while (!open_.empty() && open_.back().left <= 0) open_.pop_back();
  }

 private:
  struct Open_group {
    const Tmxd_group_layer* group;
    std::int32_t left;
  };
  std::vector<Open_group> open_;
};

}  // namespace

std::vector<Layer_place> placed_layers(const Tmxd_map& map) {
  std::vector<Layer_place> places;
  Group_nesting nesting;
  for (const auto& layer : map.layers) {
    places.push_back({layer, nesting.groups()});
    nesting.passed(*layer);
  }
  return places;
}

std::string kind_of(const Tmxd_layer& layer) {
  if (dynamic_cast<const Tmxd_group_layer*>(&layer)) return "group";
  if (dynamic_cast<const Tmxd_feature_layer*>(&layer)) return "feature";
  if (dynamic_cast<const Tmxd_raster_layer*>(&layer)) return "raster";
  return "graphics";
}

std::optional<bool> visible(const Tmxd_layer& layer) {
  const bool stored = dynamic_cast<const Tmxd_feature_layer*>(&layer) ||
                      dynamic_cast<const Tmxd_group_layer*>(&layer);
  if (!stored || layer.repeat) return std::nullopt;
  return layer.visible != 0;
}

std::string group_path(const Layer_place& place) {
  std::string path;
  for (const auto* group : place.groups) {
    if (!path.empty()) path += " / ";
    path += utf8(group->layer_name);
  }
  return path;
}

std::string scales_text(const Tmxd_layer& layer) {
  const auto scale = [](double denominator) {
    return denominator == 0 ? std::string("any") : fmt::format("1:{:.10g}", denominator);
  };
  if (layer.min_scale == 0 && layer.max_scale == 0) return {};
  return scale(layer.min_scale) + " to " + scale(layer.max_scale);
}

std::string Source::text() const {
  std::string text = feature_dataset.empty() ? dataset : feature_dataset + "/" + dataset;
  if (!type.empty() && !dataset.empty()) text += " (" + type + ")";
  if (text.empty() || workspace.empty()) return text + workspace;
  return text + " in " + workspace;
}

bool Source::contains(std::string_view wanted) const {
  // Between workspace and dataset stands whatever the reader's system puts between names.
  for (const char* separator : {"\\", "/"}) {
    std::string path = workspace;
    for (const std::string& name : {feature_dataset, dataset}) {
      const bool ends_so = path.ends_with('\\') || path.ends_with('/');
      if (!path.empty() && !name.empty() && !ends_so) path += separator;
      path += name;
    }
    if (fold_case(path).find(wanted) != std::string::npos) return true;
  }
  return false;
}

Source source_of(const Tmxd_layer& layer) {
  Source source;
  if (const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer)) {
    source.workspace = utf8(feature->workspace_name.name);
    if (const auto* name = feature->feature_class_name.get()) {
      source.dataset = utf8(name->name);
      source.type = utf8(name->type_name1);
      if (name->feature_dataset_name.exists) {
        source.feature_dataset = utf8(name->feature_dataset_name.str1);
      }
    }
  } else if (const auto* raster = dynamic_cast<const Tmxd_raster_layer*>(&layer)) {
    source.workspace = utf8(raster->workspace_name.name);
    if (const auto* name = raster->raster_dataset_name.get()) {
      source.dataset = utf8(name->str1);
      source.type = utf8(name->str3);
    }
  }
  return source;
}

std::string geometry_name(std::int32_t type) {
  switch (type) {
    case 1:
      return "point";
    case 2:
      return "multipoint";
    case 3:
      return "polyline";
    case 4:
      return "polygon";
    case 9:
      return "multipatch";
    default:
      return {};
  }
}

std::string geometry_of(const Tmxd_layer& layer) {
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  const auto* name = feature ? feature->feature_class_name.get() : nullptr;
  return name ? geometry_name(name->geom_type) : std::string();
}

const Tmxd_coordinate_system* coordinate_system_of(const Tmxd_layer& layer) {
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  return feature ? feature->coordinate_system.get() : nullptr;
}

std::string coordinate_system_text(const Tmxd_coordinate_system& system) {
  const auto* unknown = dynamic_cast<const Tmxd_unknown_coordinate_system*>(&system);
  return unknown ? utf8(unknown->text) : utf8_of_narrow(system.get_wkt());
}

// The name in a coordinate system's text is what stands between the first quotation marks.
std::string coordinate_system_name(const Tmxd_coordinate_system& system) {
  const std::string_view wkt = system.get_wkt();
  const std::size_t begin = wkt.find('"');
  const std::size_t end = wkt.find('"', begin + 1);
  const bool isolated = begin < end && end != std::string_view::npos && end > begin + 1;
  return isolated ? utf8_of_narrow(wkt.substr(begin + 1, end - begin - 1)) : "unknown";
}

// The authority of the whole system is the last thing in its text, before it closes.
std::optional<int> epsg_code(const Tmxd_coordinate_system& system) {
  constexpr std::string_view key = "AUTHORITY[\"EPSG\",";
  const std::string_view wkt = system.get_wkt();
  const std::size_t at = wkt.rfind(key);
  if (at == wkt.npos) return std::nullopt;
  const std::string_view rest = wkt.substr(at + key.size());
  int code = 0;
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), code);
  const bool closed = rest.substr(static_cast<std::size_t>(end - rest.data())) == "]]";
  return error == std::errc() && closed && code > 0 ? std::optional(code) : std::nullopt;
}

const Tmxd_renderer* renderer_of(const Tmxd_layer& layer) {
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  return feature ? feature->renderer.get() : nullptr;
}

std::string renderer_kind(const Tmxd_renderer& renderer) {
  if (dynamic_cast<const Tmxd_unique_value_renderer*>(&renderer)) return "unique_values";
  if (dynamic_cast<const Tmxd_class_breaks_renderer*>(&renderer)) return "class_breaks";
  return "simple";
}

std::vector<std::string> renderer_fields(const Tmxd_renderer& renderer) {
  std::vector<std::string> fields;
  const auto add = [&fields](const Wide_string& name) {
    std::string text = utf8(name);
    if (!text.empty()) fields.push_back(std::move(text));
  };
  if (const auto* unique = dynamic_cast<const Tmxd_unique_value_renderer*>(&renderer)) {
    for (const Wide_string* name : {&unique->propname1, &unique->propname2, &unique->propname3}) {
      add(*name);
    }
  } else if (const auto* breaks = dynamic_cast<const Tmxd_class_breaks_renderer*>(&renderer)) {
    add(breaks->propname);
  }
  return fields;
}

std::string drawn_text(const Tmxd_renderer& renderer) {
  const std::string kind = renderer_kind(renderer);
  if (kind == "simple") return "one symbol";
  return fmt::format("by {} of {}", kind == "class_breaks" ? "ranges" : "values",
                     fmt::join(renderer_fields(renderer), ", "));
}

std::vector<const Tmxd_legend_group*> legend_groups(const Tmxd_renderer& renderer) {
  if (const auto* simple = dynamic_cast<const Tmxd_simple_renderer*>(&renderer)) {
    return {&simple->legend_group};
  }
  if (const auto* unique = dynamic_cast<const Tmxd_unique_value_renderer*>(&renderer)) {
    return {&unique->other_leg_grp, &unique->main_leg_grp};
  }
  if (const auto* breaks = dynamic_cast<const Tmxd_class_breaks_renderer*>(&renderer)) {
    return {&breaks->main_leg_grp};
  }
  return {};
}

std::size_t legend_class_count(const Tmxd_layer& layer) {
  std::size_t count = 0;
  if (const auto* renderer = renderer_of(layer)) {
    for (const auto* group : legend_groups(*renderer)) count += group->legend_classes.size();
  }
  return count;
}

std::string symbol_kind(const Tmxd_symbol* symbol) {
  if (!symbol) return "no symbol";
  std::string kind(symbol->type_name().substr(std::string_view("mxd_").size()));
  std::replace(kind.begin(), kind.end(), '_', ' ');
  return kind;
}

}  // namespace mxdinfo
