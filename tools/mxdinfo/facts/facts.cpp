#include "mxdinfo/facts/facts.h"

#include <fmt/format.h>

#include <algorithm>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/layers.h"
#include "rendering/renderer_classes.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// The layer as this class, or null if it is of another.
template <class Wanted>
const Wanted* as(const Tmxd_layer& layer) {
  return is_of<Wanted>(layer) ? static_cast<const Wanted*>(&layer) : nullptr;
}

}  // namespace

std::optional<bool> visible(const Tmxd_layer& layer) {
  using Result = std::optional<bool>;
  if (layer.repeat) return std::nullopt;
  const Result stored = layer.visible != 0;
  return visit(layer, Overloaded{[&](const Tmxd_group_layer&) { return stored; },
                                 [&](const Tmxd_feature_layer&) { return stored; },
                                 [](const Tmxd_raster_layer&) { return Result(); },
                                 [](const Tmxd_fdo_graphics_layer&) { return Result(); }});
}

std::string scales_text(const Tmxd_layer& layer) {
  const auto scale = [](double denominator) {
    return denominator == 0 ? std::string("any") : fmt::format("1:{:.10g}", denominator);
  };
  if (layer.min_scale == 0 && layer.max_scale == 0) return {};
  if (!is_possible_scale(layer.min_scale) || !is_possible_scale(layer.max_scale)) return {};
  return scale(layer.min_scale) + " to " + scale(layer.max_scale);
}

std::string Source::text() const {
  std::string text = feature_dataset.empty() ? dataset : feature_dataset + "/" + dataset;
  if (!type.empty() && !dataset.empty()) text += " (" + type + ")";
  if (text.empty() || workspace.empty()) return text + workspace;
  return text + " in " + workspace;
}

bool Source::contains(std::string_view wanted) const {
  // Workspace and dataset may be separated as on either system.
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

namespace {

Source feature_source(const Tmxd_feature_layer& layer) {
  Source source;
  source.workspace = utf8(layer.workspace_name.name);
  if (const auto* name = layer.feature_class_name.get()) {
    source.dataset = utf8(name->name);
    source.type = utf8(name->type_name1);
    if (name->feature_dataset_name.exists) {
      source.feature_dataset = utf8(name->feature_dataset_name.str1);
    }
  }
  return source;
}

Source raster_source(const Tmxd_raster_layer& layer) {
  Source source;
  source.workspace = utf8(layer.workspace_name.name);
  if (const auto* name = layer.raster_dataset_name.get()) {
    source.dataset = utf8(name->str1);
    source.type = utf8(name->str3);
  }
  return source;
}

}  // namespace

Source source_of(const Tmxd_layer& layer) {
  return visit(layer,
               Overloaded{[](const Tmxd_group_layer&) { return Source(); },
                          [](const Tmxd_feature_layer& feature) { return feature_source(feature); },
                          [](const Tmxd_raster_layer& raster) { return raster_source(raster); },
                          [](const Tmxd_fdo_graphics_layer&) { return Source(); }});
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

std::string display_field_of(const Tmxd_layer& layer) {
  const auto* feature = as<Tmxd_feature_layer>(layer);
  return feature ? utf8(feature->str1) : std::string();
}

std::string geometry_of(const Tmxd_layer& layer) {
  const auto* feature = as<Tmxd_feature_layer>(layer);
  const auto* name = feature ? feature->feature_class_name.get() : nullptr;
  return name ? geometry_name(name->geom_type) : std::string();
}

const Tmxd_coordinate_system* coordinate_system_of(const Tmxd_layer& layer) {
  const auto* feature = as<Tmxd_feature_layer>(layer);
  return feature ? feature->coordinate_system.get() : nullptr;
}

std::string coordinate_system_text(const Tmxd_coordinate_system& system) {
  const auto wkt = [](const Tmxd_coordinate_system& known) {
    return utf8_of_narrow(known.get_wkt());
  };
  return visit(system,
               Overloaded{
                   [](const Tmxd_unknown_coordinate_system& unknown) { return utf8(unknown.text); },
                   [&](const Tmxd_geographic_coordinate_system& known) { return wkt(known); },
                   [&](const Tmxd_projected_coordinate_system& known) { return wkt(known); },
               });
}

// A coordinate system's name is the first quoted text in its well-known text.
std::string coordinate_system_name(const Tmxd_coordinate_system& system) {
  const std::string_view wkt = system.get_wkt();
  const std::size_t begin = wkt.find('"');
  const std::size_t end = wkt.find('"', begin + 1);
  const bool isolated = begin < end && end != std::string_view::npos && end > begin + 1;
  return isolated ? utf8_of_narrow(wkt.substr(begin + 1, end - begin - 1)) : "unknown";
}

const Tmxd_renderer* renderer_of(const Tmxd_layer& layer) {
  const auto* feature = as<Tmxd_feature_layer>(layer);
  const Tmxd_renderer* renderer = feature ? feature->renderer.get() : nullptr;
  const auto* simple = as<Tmxd_simple_renderer>(renderer);
  // The legend group follows the symbol. If it is not there, the search for the symbol found that
  // of a later part, such as the selection.
  return simple && simple->legend_group.number == 0 ? nullptr : renderer;
}

bool has_unknown_renderer(const Tmxd_layer& layer) {
  return as<Tmxd_feature_layer>(layer) && !renderer_of(layer);
}

Renderer_kind kind_of(const Tmxd_renderer& renderer) {
  return visit(renderer,
               Overloaded{
                   [](const Tmxd_simple_renderer&) { return Renderer_kind::simple; },
                   [](const Tmxd_unique_value_renderer&) { return Renderer_kind::unique_values; },
                   [](const Tmxd_class_breaks_renderer&) { return Renderer_kind::class_breaks; },
               });
}

std::string renderer_kind(const Tmxd_renderer& renderer) {
  switch (kind_of(renderer)) {
    case Renderer_kind::simple:
      return "simple";
    case Renderer_kind::unique_values:
      return "unique_values";
    case Renderer_kind::class_breaks:
      return "class_breaks";
  }
  return {};
}

std::vector<std::string> renderer_fields(const Tmxd_renderer& renderer) {
  std::vector<std::string> fields;
  const auto add = [&fields](const Wide_string& name) {
    std::string text = utf8(name);
    if (!text.empty()) fields.push_back(std::move(text));
  };
  visit(renderer,
        Overloaded{[](const Tmxd_simple_renderer&) {},
                   [&](const Tmxd_unique_value_renderer& unique) {
                     add(unique.propname1);
                     add(unique.propname2);
                     add(unique.propname3);
                   },
                   [&](const Tmxd_class_breaks_renderer& breaks) { add(breaks.propname); }});
  return fields;
}

std::string drawn_text(const Tmxd_layer& layer, const Feature_facts& facts) {
  const auto* renderer = renderer_of(layer);
  if (!renderer) return has_unknown_renderer(layer) ? "not known" : "";
  const std::string divisor = utf8(facts.normalization_field.value_or(Wide_string()));
  const std::string fields = fmt::format("{}", fmt::join(renderer_fields(*renderer), ", "));
  switch (kind_of(*renderer)) {
    case Renderer_kind::simple:
      return "one symbol";
    case Renderer_kind::unique_values:
      return "by values of " + fields;
    case Renderer_kind::class_breaks:
      return "by ranges of " + fields + (divisor.empty() ? "" : " divided by " + divisor);
  }
  return {};
}

std::vector<const Tmxd_legend_group*> legend_groups(const Tmxd_renderer& renderer) {
  using Groups = std::vector<const Tmxd_legend_group*>;
  return visit(
      renderer,
      Overloaded{
          [](const Tmxd_simple_renderer& simple) { return Groups{&simple.legend_group}; },
          [](const Tmxd_unique_value_renderer& unique) {
            return Groups{&unique.other_leg_grp, &unique.main_leg_grp};
          },
          [](const Tmxd_class_breaks_renderer& breaks) { return Groups{&breaks.main_leg_grp}; },
      });
}

std::size_t legend_class_count(const Tmxd_layer& layer) {
  std::size_t count = 0;
  if (const auto* renderer = renderer_of(layer)) {
    for (const auto* group : legend_groups(*renderer)) count += group->legend_classes.size();
  }
  return count;
}

Symbol_family family_of(const Tmxd_symbol& symbol) {
  return visit(symbol, Overloaded{[](const Tmxd_marker_symbol&) { return Symbol_family::marker; },
                                  [](const Tmxd_line_symbol&) { return Symbol_family::line; },
                                  [](const Tmxd_fill_symbol&) { return Symbol_family::fill; }});
}

std::string symbol_kind(const Tmxd_symbol* symbol) {
  if (!symbol) return "no symbol";
  std::string kind(symbol->type_name().substr(std::string_view("mxd_").size()));
  std::replace(kind.begin(), kind.end(), '_', ' ');
  return kind;
}

}  // namespace mxdinfo
