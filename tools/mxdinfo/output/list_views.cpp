// Lists of one document's layers, data sources and coordinate systems.
#include <map>

#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/fonts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/output/text_views.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr const char* not_decoded = "not known, because the layers are not decoded";

// Things and who uses them, in the order of their first use. Users are names of layers, made only
// when they are written.
template <class User>
class Usage_list {
 public:
  void add(const std::string& thing, const User& user) {
    const auto [place, is_new] = places_.emplace(thing, users_.size());
    if (is_new) users_.push_back({&place->first, {}});
    users_[place->second].second.push_back(user);
  }
  template <class Name>
  void append_to(Text_lines& lines, Name name) const {
    for (const auto& [thing, users] : users_) {
      lines.line(2, escape_controls(*thing));
      for (const User& user : users) {
        if (lines.is_full()) return;
        lines.line(4, escape_controls(name(user)));
      }
    }
  }

 private:
  std::map<std::string, std::size_t> places_;
  std::vector<std::pair<const std::string*, std::vector<User>>> users_;
};

template <class Visit>
void visit_layers(const Report& report, const Text_lines& lines, Visit visit) {
  for (const Map_outline& map : report.outline.maps) {
    for (const Listed_layer& layer : listed_layers(map)) {
      if (lines.is_full()) return;
      visit(layer);
    }
  }
}

// A map, or a layer of it.
struct System_user {
  const Map_outline* map;
  std::optional<Listed_layer> layer;
};

}  // namespace

void append_layers(Text_lines& lines, const Report& report) {
  visit_layers(report, lines, [&](const Listed_layer& layer) {
    const std::string geometry = layer.layer() ? geometry_of(*layer.layer()) : std::string();
    const std::string kind =
        layer.layer() ? kind_word(layer.record().kind()) : kind_text(layer.record());
    lines.line(2, fmt::format("{}  ({}{}{})", escape_controls(full_name(layer)), kind,
                              geometry.empty() ? "" : ", ", geometry));
  });
}

void append_sources(Text_lines& lines, const Report& report) {
  Usage_list<Listed_layer> sources;
  visit_layers(report, lines, [&](const Listed_layer& layer) {
    if (!layer.layer()) return sources.add(not_decoded, layer);
    const Source source = source_of(*layer.layer());
    if (source.empty()) return;
    const Source_state* state = report.source_state(layer.layer());
    sources.add(shortened(source.text()) + (state ? ": " + state_text(*state) : ""), layer);
  });
  sources.append_to(lines, full_name);
}

void append_fonts(Text_lines& lines, const Report& report) {
  Usage_list<Listed_layer> fonts;
  visit_layers(report, lines, [&](const Listed_layer& layer) {
    for (const std::string& font : fonts_of(layer.record())) fonts.add(font, layer);
  });
  fonts.append_to(lines, full_name);
}

void append_coordinate_systems(Text_lines& lines, const Report& report) {
  Usage_list<System_user> systems;
  for (const Map_outline& map : report.outline.maps) {
    const auto* system = map.map->coordinate_system.get();
    if (system) systems.add(coordinate_system_text_line(*system), {&map, std::nullopt});
  }
  visit_layers(report, lines, [&](const Listed_layer& layer) {
    if (!layer.layer()) return systems.add(not_decoded, {layer.map, layer});
    const auto* system = coordinate_system_of(*layer.layer());
    if (system) systems.add(coordinate_system_text_line(*system), {layer.map, layer});
  });
  systems.append_to(lines, [](const System_user& user) {
    return user.layer ? full_name(*user.layer)
                      : fmt::format("Map \"{}\"", shortened(name_of(*user.map)));
  });
}

}  // namespace mxdinfo
