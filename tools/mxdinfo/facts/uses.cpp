#include "mxdinfo/facts/uses.h"

#include <fmt/format.h>

#include <set>
#include <tuple>

#include "mxdinfo/facts/data_source.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/fonts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/symbol_text.h"
#include "outline/epsg_code.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// What layers use that are not decoded.
constexpr const char* not_decoded = "not known";

template <class Visit>
void visit_layers(const Report& report, Visit visit) {
  for (const Map_outline& map : report.outline.maps) {
    for (const Listed_layer& layer : listed_layers(map)) visit(layer);
  }
}

std::vector<Use> source_uses(const Report& report, bool with_states) {
  std::vector<Use> uses;
  visit_layers(report, [&](const Listed_layer& listed) {
    const Tmxd_layer* layer = listed.layer();
    if (!layer) {
      const std::size_t empty_cells = with_states ? 5 : 3;
      uses.push_back({{not_decoded}});
      uses.back().cells.resize(1 + empty_cells);
      return;
    }
    const Source source = source_of(*layer);
    if (source.empty()) return;
    Use use{{std::string(data_kind(*layer)), shortened(source.dataset),
             shortened(source.feature_dataset), shortened(source.workspace)}};
    if (with_states) {
      const Source_state* state = report.source_state(layer);
      use.cells.emplace_back(state ? presence_word(state->presence) : "");
      use.cells.push_back(state ? shortened(state->path) : "");
    }
    uses.push_back(std::move(use));
  });
  return uses;
}

std::vector<Use> coordinate_system_uses(const Report& report) {
  std::vector<Use> uses;
  const auto add = [&](const Tmxd_coordinate_system* system, bool by_layer) {
    if (!system) return;
    const auto code = epsg_code(system->get_wkt());
    uses.push_back({{shortened(coordinate_system_name(*system)),
                     code ? fmt::format("{}", *code) : std::string()},
                    by_layer});
  };
  for (const Map_outline& map : report.outline.maps) add(map.map->coordinate_system.get(), false);
  visit_layers(report, [&](const Listed_layer& listed) {
    if (listed.layer()) return add(coordinate_system_of(*listed.layer()), true);
    uses.push_back({{not_decoded, ""}, true});
  });
  return uses;
}

// The layers of a symbol, the topmost first.
std::string symbol_words(const Tmxd_symbol* symbol) {
  std::string words;
  for (const Tmxd_symbol* layer : symbol_layers(symbol)) {
    if (!words.empty()) words += " + ";
    words += symbol_text(layer);
    if (words.size() > max_name_length) break;
  }
  return shortened(words);
}

std::vector<Use> symbol_uses(const Report& report) {
  std::vector<Use> uses;
  visit_layers(report, [&](const Listed_layer& listed) {
    const auto* renderer = listed.layer() ? renderer_of(*listed.layer()) : nullptr;
    if (!renderer) return;
    std::set<std::string> symbols;
    for (const Legend_entry& entry : legend_entries(*renderer, listed.record().facts)) {
      if (entry.symbol) symbols.insert(symbol_words(entry.symbol));
    }
    for (const std::string& symbol : symbols) uses.push_back({{symbol}});
  });
  return uses;
}

std::vector<Use> font_uses(const Report& report) {
  std::vector<Use> uses;
  visit_layers(report, [&](const Listed_layer& listed) {
    for (const std::string& font : fonts_of(listed.record())) uses.push_back({{font}});
  });
  return uses;
}

std::vector<Use> loss_uses(const Report& report) {
  std::vector<Use> uses;
  // A layer may have several losses of one kind.
  std::set<std::tuple<const Map_outline*, std::size_t, std::string_view, std::string_view>> seen;
  for (const Loss& loss : losses_of(report)) {
    const std::string_view type = loss.error ? loss.error->type : loss.words.subject;
    const std::size_t layer = loss.layer ? loss.layer->index + 1 : 0;
    if (!seen.emplace(loss.map, layer, loss.words.consequence, type).second) continue;
    uses.push_back({{std::string(loss.words.subject), std::string(loss.words.consequence),
                     loss.error ? std::string(loss.error->type) : std::string()},
                    loss.layer.has_value()});
  }
  return uses;
}

}  // namespace

std::vector<std::string> use_columns(View view, bool with_states) {
  switch (view) {
    case View::sources:
      if (with_states) return {"kind", "dataset", "feature_dataset", "workspace", "state", "path"};
      return {"kind", "dataset", "feature_dataset", "workspace"};
    case View::coordinate_systems:
      return {"coordinate_system", "epsg"};
    case View::symbols:
      return {"symbol"};
    case View::fonts:
      return {"font"};
    case View::losses:
      return {"what", "consequence", "type"};
    case View::tree:
    case View::layers:
    case View::broken:
      break;
  }
  return {};
}

std::vector<Use> uses_of(const Report& report, View view, bool with_states) {
  switch (view) {
    case View::sources:
      return source_uses(report, with_states);
    case View::coordinate_systems:
      return coordinate_system_uses(report);
    case View::symbols:
      return symbol_uses(report);
    case View::fonts:
      return font_uses(report);
    case View::losses:
      return loss_uses(report);
    case View::tree:
    case View::layers:
    case View::broken:
      break;
  }
  return {};
}

}  // namespace mxdinfo
