// A document as an indented tree, the way people know it from a table of contents.
#include "core/number_text.h"
#include "mxdinfo/facts/names_by_number.h"
#include "mxdinfo/facts/symbol_text.h"
#include "mxdinfo/output/text_views.h"

namespace mxdinfo {
namespace {

using namespace mxd;

std::string kind_text(const Tmxd_layer& layer) {
  if (const auto* group = dynamic_cast<const Tmxd_group_layer*>(&layer)) {
    return std::string("group of ").append(int_text(group->layer_count));
  }
  return kind_of(layer) + " layer";
}

class Tree {
 public:
  Tree(bool color, bool symbols_alone) : lines_(color), symbols_alone_(symbols_alone) {}

  std::string text(const Tmxd_mxd& document, const std::string& name) {
    lines_.line(0, lines_.bold(escape_controls(name)));
    if (document.maps.empty()) lines_.line(2, "no maps");
    for (const auto& map : document.maps) append_map(*map);
    return lines_.take();
  }

 private:
  void append_reference(std::size_t indent, std::string_view kind, const Tmxd_obj& object) {
    const std::string name =
        names_.name_of(object).value_or("number " + std::to_string(object.number));
    lines_.line(indent, fmt::format("{} \"{}\" again", kind, escape_controls(name)));
  }

  void append_map(const Tmxd_map& map) {
    if (map.repeat) {
      append_reference(2, "Map", map);
      return;
    }
    names_.add(map, map.name);
    lines_.line(2, fmt::format("Map \"{}\"", lines_.bold(escape_controls(utf8(map.name)))));
    const auto* system = map.coordinate_system.get();
    if (system && !symbols_alone_) {
      lines_.detail(4, "coordinate system", coordinate_system_name(*system));
    }
    for (const Layer_place& place : placed_layers(map)) {
      const std::size_t indent = 4 + 2 * place.groups.size();
      if (place.layer->repeat) {
        append_reference(indent, "    Layer", *place.layer);
      } else {
        names_.add(*place.layer, place.layer->layer_name);
        append_layer(indent, *place.layer);
      }
    }
  }

  void append_layer(std::size_t indent, const Tmxd_layer& layer) {
    const auto shown = visible(layer);
    const char* box = !shown ? "   " : *shown ? "[x]" : "[ ]";
    lines_.line(indent, fmt::format("{} {}  ({})", box,
                                    lines_.bold(escape_controls(utf8(layer.layer_name))),
                                    kind_text(layer)));
    if (!symbols_alone_) {
      lines_.detail(indent + 6, "data", source_of(layer).text());
      lines_.detail(indent + 6, "scales", scales_text(layer));
      if (const auto* system = coordinate_system_of(layer)) {
        lines_.detail(indent + 6, "coordinate system", coordinate_system_name(*system));
      }
    }
    if (const auto* renderer = renderer_of(layer)) append_drawing(indent, *renderer);
  }

  void append_drawing(std::size_t indent, const Tmxd_renderer& renderer) {
    lines_.detail(indent + 6, "drawn", drawn_text(renderer));
    for (const auto* group : legend_groups(renderer)) {
      for (const auto& item : group->legend_classes) append_class(indent + 8, *item);
    }
  }

  void append_class(std::size_t indent, const Tmxd_legend_class& item) {
    const auto* symbol = item.symbol_slot.get();
    const std::string label = utf8(item.label);
    const auto color = main_color(symbol);
    lines_.line(indent, fmt::format("{}{}  ({}{}{})", lines_.swatch(symbol),
                                    label.empty() ? "-" : escape_controls(label),
                                    symbol_kind(symbol), color ? ", " : "", color.value_or("")));
    if (!symbols_alone_) return;
    for (const auto* part : symbol_layers(symbol)) {
      lines_.line(indent + 2, fmt::format("{}{}", escape_controls(symbol_text(part)),
                                          part && !part->enabled ? "  (off)" : ""));
    }
  }

  Text_lines lines_;
  bool symbols_alone_;
  Names_by_number names_;
};

}  // namespace

std::string Text_lines::swatch(const Tmxd_symbol* symbol) const {
  if (!color_) return {};
  const auto color = main_color(symbol);
  if (!color) return "   ";
  const auto channel = [&](std::size_t at) { return std::stoi(color->substr(at, 2), nullptr, 16); };
  const bool marker = dynamic_cast<const Tmxd_marker_symbol*>(symbol) != nullptr;
  const bool line = dynamic_cast<const Tmxd_line_symbol*>(symbol) != nullptr;
  return fmt::format("\x1b[38;2;{};{};{}m{}\x1b[0m ", channel(1), channel(3), channel(5),
                     marker ? "● "
                     : line ? "━━"
                            : "██");
}

std::string tree_view(const Tmxd_mxd& document, const std::string& name, bool color) {
  return Tree(color, false).text(document, name);
}

std::string symbols_view(const Tmxd_mxd& document, const std::string& name, bool color) {
  return Tree(color, true).text(document, name);
}

}  // namespace mxdinfo
