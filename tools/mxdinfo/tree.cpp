#include "mxdinfo/tree.h"

#include <algorithm>
#include <map>
#include <vector>

#include "core/number_text.h"
#include "mxdinfo/utf8.h"
#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// The name in a coordinate system's text: what stands between the first quotation marks.
std::string coordinate_system_name(const Tmxd_coordinate_system& system) {
  const std::string_view wkt = system.get_wkt();
  const std::size_t begin = wkt.find('"');
  const std::size_t end = begin == wkt.npos ? begin : wkt.find('"', begin + 1);
  if (end == wkt.npos) return "unknown";
  return utf8(narrow_to_wide(wkt.substr(begin + 1, end - begin - 1)));
}

std::string kind_of(const Tmxd_layer& layer) {
  if (const auto* group = dynamic_cast<const Tmxd_group_layer*>(&layer)) {
    return std::string("group of ").append(int_text(group->layer_count));
  }
  if (dynamic_cast<const Tmxd_feature_layer*>(&layer)) return "feature layer";
  if (dynamic_cast<const Tmxd_raster_layer*>(&layer)) return "raster layer";
  return "graphics layer";
}

// Where one layer's lines go.
class Layer_lines {
 public:
  Layer_lines(std::string& out, std::size_t indent) : out_(out), indent_(indent) {}

  void head(const Tmxd_layer& layer, bool can_be_hidden) {
    const char* box = !can_be_hidden ? "   " : layer.visible ? "[x]" : "[ ]";
    out_.append(indent_, ' ').append(box).append(" ").append(utf8(layer.layer_name));
    out_.append("  (").append(kind_of(layer)).append(")\n");
  }

  void legend(std::string_view label, std::string_view symbol) {
    out_.append(indent_ + 8, ' ').append(label.empty() ? "-" : label);
    out_.append("  (").append(symbol).append(")\n");
  }

  void detail(std::string_view label, std::string_view text) {
    if (text.empty()) return;
    out_.append(indent_ + 6, ' ').append(label).append(": ").append(text).append("\n");
  }

 private:
  std::string& out_;
  std::size_t indent_;
};

std::string scales_text(const Tmxd_layer& layer) {
  const auto scale = [](double denominator) {
    return denominator == 0 ? std::string("any") : "1:" + double_text(denominator);
  };
  if (layer.min_scale == 0 && layer.max_scale == 0) return {};
  return scale(layer.min_scale) + " to " + scale(layer.max_scale);
}

std::string joined(std::string name, std::string_view link, const std::string& place) {
  if (name.empty() || place.empty()) return name + place;
  return name.append(link).append(place);
}

void raster_details(Layer_lines& lines, const Tmxd_raster_layer& layer) {
  const auto* name = layer.raster_dataset_name.get();
  lines.detail("data",
               joined(name ? utf8(name->str1) : "", " in ", utf8(layer.workspace_name.name)));
}

std::string symbol_kind(const Tmxd_symbol* symbol) {
  if (!symbol) return "no symbol";
  std::string kind(symbol->type_name().substr(std::string_view("mxd_").size()));
  std::replace(kind.begin(), kind.end(), '_', ' ');
  return kind;
}

void legend_details(Layer_lines& lines, const Tmxd_legend_group& group) {
  for (const auto& item : group.legend_classes) {
    lines.legend(utf8(item->label), symbol_kind(item->symbol_slot.get()));
  }
}

std::string fields_text(const Tmxd_unique_value_renderer& renderer) {
  std::string text;
  for (const Wide_string* name : {&renderer.propname1, &renderer.propname2, &renderer.propname3}) {
    text = joined(std::move(text), ", ", utf8(*name));
  }
  return text;
}

void renderer_details(Layer_lines& lines, const Tmxd_renderer* renderer) {
  if (const auto* simple = dynamic_cast<const Tmxd_simple_renderer*>(renderer)) {
    lines.detail("drawn", "one symbol");
    legend_details(lines, simple->legend_group);
  } else if (const auto* unique = dynamic_cast<const Tmxd_unique_value_renderer*>(renderer)) {
    lines.detail("drawn", "by values of " + fields_text(*unique));
    legend_details(lines, unique->main_leg_grp);
    legend_details(lines, unique->other_leg_grp);
  } else if (const auto* breaks = dynamic_cast<const Tmxd_class_breaks_renderer*>(renderer)) {
    lines.detail("drawn", "by ranges of " + utf8(breaks->propname));
    legend_details(lines, breaks->main_leg_grp);
  }
}

void feature_details(Layer_lines& lines, const Tmxd_feature_layer& layer) {
  std::string data;
  if (const auto* name = layer.feature_class_name.get()) {
    data = utf8(name->name);
    const std::string type = utf8(name->type_name1);
    if (!type.empty()) data += " (" + type + ")";
  }
  lines.detail("data", joined(data, " in ", utf8(layer.workspace_name.name)));
  lines.detail("scales", scales_text(layer));
  if (const auto* system = layer.coordinate_system.get()) {
    lines.detail("coordinate system", coordinate_system_name(*system));
  }
  renderer_details(lines, layer.renderer.get());
}

// A group says how many layers follow as its members; damaged documents have fewer.
class Group_nesting {
 public:
  std::size_t indent() const { return 4 + 2 * std::min<std::size_t>(open_.size(), deepest_shown); }

  void passed(const Tmxd_layer& layer) {
    if (!open_.empty()) --open_.back();
    if (const auto* group = dynamic_cast<const Tmxd_group_layer*>(&layer)) {
      open_.push_back(group->layer_count);
    }
    while (!open_.empty() && open_.back() <= 0) open_.pop_back();
  }

 private:
  static constexpr std::size_t deepest_shown = 40;
  std::vector<std::int32_t> open_;
};

void append_layer(std::string& out, std::size_t indent, const Tmxd_layer& layer) {
  Layer_lines lines(out, indent);
  const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(&layer);
  const auto* raster = dynamic_cast<const Tmxd_raster_layer*>(&layer);
  lines.head(layer, feature || dynamic_cast<const Tmxd_group_layer*>(&layer));
  if (feature) feature_details(lines, *feature);
  if (raster) raster_details(lines, *raster);
}

void append_reference(std::string& out, std::size_t indent, std::string_view kind,
                      const std::string& name) {
  out.append(indent, ' ').append(kind).append(" \"").append(name).append("\" again\n");
}

// What a reference to a map or a layer means: the one stored before under the same number.
class Stored_before {
 public:
  void add(const Tmxd_obj& object, const Wide_string& name) {
    names_.emplace(object.number, utf8(name));
  }

  std::string name_of(const Tmxd_obj& reference) const {
    const auto found = names_.find(reference.number);
    return found == names_.end() ? "number " + std::to_string(reference.number) : found->second;
  }

 private:
  std::map<std::uint16_t, std::string> names_;
};

void append_map(std::string& out, const Tmxd_map& map, Stored_before& stored) {
  if (map.repeat) {
    append_reference(out, 2, "Map", stored.name_of(map));
    return;
  }
  stored.add(map, map.name);
  out.append("  Map \"").append(utf8(map.name)).append("\"\n");
  if (const auto* system = map.coordinate_system.get()) {
    out.append("    coordinate system: ").append(coordinate_system_name(*system)).append("\n");
  }
  Group_nesting nesting;
  for (const auto& layer : map.layers) {
    if (layer->repeat) {
      append_reference(out, nesting.indent(), "    Layer", stored.name_of(*layer));
    } else {
      stored.add(*layer, layer->layer_name);
      append_layer(out, nesting.indent(), *layer);
    }
    nesting.passed(*layer);
  }
}

}  // namespace

std::string tree_text(const Tmxd_mxd& document) {
  std::string out = utf8(document.filename) + "\n";
  if (document.maps.empty()) out += "  no maps\n";
  Stored_before stored;
  for (const auto& map : document.maps) append_map(out, *map, stored);
  return out;
}

}  // namespace mxdinfo
