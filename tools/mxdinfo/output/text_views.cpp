// The text: views of documents, and who uses a data source.
#include "mxdinfo/output/text_views.h"

#include <map>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// Things and who uses them, in the order in which they first come up.
class Usage_list {
 public:
  void add(const std::string& thing, const std::string& user) {
    const auto [place, is_new] = places_.emplace(thing, list_.size());
    if (is_new) list_.push_back({thing, {}});
    list_[place->second].second.push_back(user);
  }
  void append_to(Text_lines& lines) const {
    for (const auto& [thing, users] : list_) {
      lines.line(2, escape_controls(thing));
      for (const std::string& user : users) lines.line(4, user);
    }
  }

 private:
  std::map<std::string, std::size_t> places_;
  std::vector<std::pair<std::string, std::vector<std::string>>> list_;
};

template <class Visit>
void visit_layers(const Tmxd_mxd& document, Visit visit) {
  for (const auto& map : document.maps) {
    for (const Layer_place& place : placed_layers(*map)) {
      if (!place.layer->repeat) visit(*map, place);
    }
  }
}

class Text_report_writer final : public Report_writer {
 public:
  explicit Text_report_writer(const Options& options)
      : view_(view_of(options.view)), color_(options.color) {}

  std::string document(const Report& report) const override {
    return report.failure.empty() ? view_(report.content, report.name, color_) : std::string();
  }

 private:
  using View_function = std::string (*)(const Tmxd_mxd&, const std::string&, bool);

  static View_function view_of(View view) {
    switch (view) {
      case View::layers:
        return layers_view;
      case View::sources:
        return sources_view;
      case View::coordinate_systems:
        return coordinate_systems_view;
      case View::symbols:
        return symbols_view;
      default:
        return tree_view;
    }
  }

  View_function view_;
  bool color_;
};

class Source_finder final : public Report_writer {
 public:
  explicit Source_finder(const Options& options)
      : wanted_(fold_case(utf8_of_path(options.find_source))) {}

  std::string document(const Report& report) const override {
    std::string out;
    visit_layers(report.content, [&](const Tmxd_map& map, const Layer_place& place) {
      const Source source = source_of(*place.layer);
      if (!source.contains(wanted_)) return;
      out += fmt::format("{}: {}: {}\n", escape_controls(report.name), full_name(map, place),
                         escape_controls(source.text()));
    });
    return out;
  }

 private:
  std::string wanted_;
};

}  // namespace

std::string full_name(const Tmxd_map& map, const Layer_place& place) {
  std::string name = utf8(map.name);
  if (!place.groups.empty()) name += " / " + group_path(place);
  return escape_controls(name + " / " + utf8(place.layer->layer_name));
}

std::string layers_view(const Tmxd_mxd& document, const std::string& name, bool color) {
  Text_lines lines(color);
  lines.line(0, lines.bold(escape_controls(name)));
  visit_layers(document, [&](const Tmxd_map& map, const Layer_place& place) {
    const std::string geometry = geometry_of(*place.layer);
    lines.line(2, fmt::format("{}  ({}{}{})", full_name(map, place), kind_of(*place.layer),
                              geometry.empty() ? "" : ", ", geometry));
  });
  return lines.take();
}

std::string sources_view(const Tmxd_mxd& document, const std::string& name, bool color) {
  Text_lines lines(color);
  lines.line(0, lines.bold(escape_controls(name)));
  Usage_list sources;
  visit_layers(document, [&](const Tmxd_map& map, const Layer_place& place) {
    const Source source = source_of(*place.layer);
    if (!source.empty()) sources.add(source.text(), full_name(map, place));
  });
  sources.append_to(lines);
  return lines.take();
}

std::string coordinate_systems_view(const Tmxd_mxd& document, const std::string& name, bool color) {
  Text_lines lines(color);
  lines.line(0, lines.bold(escape_controls(name)));
  Usage_list systems;
  for (const auto& map : document.maps) {
    const auto* system = map->coordinate_system.get();
    if (!system) continue;
    systems.add(coordinate_system_name(*system),
                fmt::format("Map \"{}\"", escape_controls(utf8(map->name))));
  }
  visit_layers(document, [&](const Tmxd_map& map, const Layer_place& place) {
    const auto* system = coordinate_system_of(*place.layer);
    if (system) systems.add(coordinate_system_name(*system), full_name(map, place));
  });
  systems.append_to(lines);
  return lines.take();
}

std::unique_ptr<Report_writer> make_text_writer(const Options& options) {
  return std::make_unique<Text_report_writer>(options);
}

std::unique_ptr<Report_writer> make_source_finder(const Options& options) {
  return std::make_unique<Source_finder>(options);
}

}  // namespace mxdinfo
