#include "mxdinfo/facts/fonts.h"

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/legend_entries.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

class Font_collector {
 public:
  explicit Font_collector(std::set<std::string>& names) : names_(names) {}

  void add(const Wide_string& name) {
    std::string text = shortened(utf8(name));
    if (!text.empty()) names_.insert(std::move(text));
  }

  // A symbol nested more deeply does not count.
  void add_symbol(const Tmxd_symbol* symbol, int depth = 0) {
    if (!symbol || depth > max_symbol_depth) return;
    const auto nested = [&](const Tmxd_symbol_slot& slot) { add_symbol(slot.get(), depth + 1); };
    const auto layers = [&](const auto& list) {
      for (const Tmxd_symbol* layer : list) add_symbol(layer, depth + 1);
    };
    visit(*symbol,
          Overloaded{
              [&](const Tmxd_char_marker_symbol& marker) { add(marker.font_name); },
              [&](const Tmxd_multilayer_marker_symbol& marker) { layers(marker.marker_symbols); },
              [&](const Tmxd_cartographic_line_symbol& line) {
                add_decoration(line.line_decoration, depth);
              },
              [&](const Tmxd_marker_line_symbol& line) { nested(line.pattern_marker); },
              [&](const Tmxd_hash_line_symbol& line) { nested(line.line_slot); },
              [&](const Tmxd_multilayer_line_symbol& line) { layers(line.line_symbols); },
              [&](const Tmxd_line_fill_symbol& fill) {
                nested(fill.pattern);
                nested(fill.outline);
              },
              [&](const Tmxd_marker_fill_symbol& fill) {
                nested(fill.marker_slot);
                nested(fill.outline_slot);
              },
              [&](const Tmxd_multilayer_fill_symbol& fill) { layers(fill.fill_symbols); },
              [](const auto&) {},
          });
  }

 private:
  void add_decoration(const Tmxd_line_decoration& decoration, int depth) {
    for (const auto* item : decoration.elements) {
      visit(*item, [&](const Tmxd_simple_line_decoration_element& element) {
        add_symbol(element.marker.get(), depth + 1);
      });
    }
  }

  std::set<std::string>& names_;
};

}  // namespace

std::set<std::string> fonts_of(const Layer_record& record) {
  std::set<std::string> names;
  Font_collector collector(names);
  if (record.facts.labels) {
    for (const Label_class& label : record.facts.labels->classes) {
      if (label.font) collector.add(label.font->name);
    }
  }
  const auto* renderer = record.layer ? renderer_of(*record.layer) : nullptr;
  if (renderer) {
    for (const Legend_entry& entry : legend_entries(*renderer, record.facts)) {
      collector.add_symbol(entry.symbol);
    }
  }
  return names;
}

}  // namespace mxdinfo
