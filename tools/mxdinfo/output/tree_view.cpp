// A document as an indented tree, like a table of contents.
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/facts/symbol_text.h"
#include "mxdinfo/output/text_views.h"

namespace mxdinfo {
namespace {

using namespace mxd;

enum class Content { everything, symbols };

class Tree {
 public:
  Tree(Text_lines& lines, const Report& report, Content content, References references)
      : lines_(lines), report_(report), content_(content), references_(references) {}

  void append() {
    if (content_ == Content::everything) {
      for (const auto& [label, text] : property_texts(report_.outline.document)) {
        lines_.detail(2, label, text);
      }
    }
    if (report_.outline.maps.empty()) lines_.line(2, "no maps");
    for (const Map_outline& map : report_.outline.maps) append_map(map);
    if (references_ == References::shown) append_map_references(report_.content);
  }

 private:
  bool shows_everything() const { return content_ == Content::everything; }

  void append_map(const Map_outline& map) {
    lines_.line(2, fmt::format("Map \"{}\"", lines_.bold(escape_controls(name_of(map)))));
    if (shows_everything()) {
      if (const auto* system = map.map->coordinate_system.get()) {
        lines_.detail(4, "coordinate system", coordinate_system_text_line(*system));
      }
      if (map.extent) lines_.detail(4, "extent", extent_text(*map.extent));
    }
    for (const Listed_layer& layer : listed_layers(map)) {
      if (lines_.is_full()) return;
      append_layer(layer);
    }
    if (references_ == References::shown) append_layer_references(map);
  }

  void append_layer(const Listed_layer& listed) {
    constexpr std::size_t max_indented_depth = 40;
    const std::size_t indent = 4 + 2 * std::min(listed.depth, max_indented_depth);
    const Tmxd_layer* layer = listed.layer();
    const auto shown = layer ? visible(*layer) : std::nullopt;
    const char* box = !shown ? "   " : *shown ? "[x]" : "[ ]";
    lines_.line(indent, fmt::format("{} {}  ({})", box,
                                    lines_.bold(escape_controls(name_of(listed.record()))),
                                    kind_text(listed.record())));
    if (!layer) return;
    if (shows_everything()) append_details(indent + 6, listed, *layer);
    append_drawing(indent + 6, *layer, listed.record().facts);
  }

  void append_details(std::size_t indent, const Listed_layer& listed, const Tmxd_layer& layer) {
    const Layer_record& record = listed.record();
    lines_.detail(indent, "data", source_of(layer).text());
    if (const Source_state* state = report_.source_state(&layer)) {
      lines_.detail(indent, "data is", state_text(*state));
    }
    lines_.detail(indent, "scales", scales_text(layer));
    lines_.detail(indent, "query", utf8(record.facts.definition_query.value_or(Wide_string())));
    lines_.detail(indent, "labels", labels_text(record));
    lines_.detail(indent, "display field", display_field_of(layer));
    lines_.detail(indent, "coordinate system", coordinate_system_text_line(listed));
  }

  void append_drawing(std::size_t indent, const Tmxd_layer& layer, const Feature_facts& facts) {
    lines_.detail(indent, "drawn", drawn_text(layer, facts));
    const auto* renderer = renderer_of(layer);
    if (!renderer) return;
    const Tmxd_legend_group* group = nullptr;
    for (const Legend_entry& entry : legend_entries(*renderer, facts)) {
      if (lines_.is_full()) return;
      if (entry.group && entry.group != group) {
        lines_.detail(indent + 2, "heading", utf8(entry.group->label));
      }
      group = entry.group;
      append_legend_entry(indent + 2, entry);
    }
  }

  void append_legend_entry(std::size_t indent, const Legend_entry& entry) {
    const Tmxd_symbol* symbol = entry.symbol;
    const std::string label = escape_controls(entry.label);
    const std::string classified = escape_controls(classified_text(entry));
    const auto color = main_color(symbol);
    lines_.line(indent,
                fmt::format("{}{}{}  ({}{}{})", lines_.swatch(symbol), label.empty() ? "-" : label,
                            classified.empty() || classified == label ? "" : ": " + classified,
                            symbol_kind(symbol), color ? ", " : "", color.value_or("")));
    if (shows_everything()) return;
    for (const auto* part : symbol_layers(symbol)) {
      lines_.line(indent + 2, fmt::format("{}{}", escape_controls(symbol_text(part)),
                                          part && !part->enabled ? "  (off)" : ""));
    }
  }

  void append_layer_references(const Map_outline& map) {
    for (const Layer_record& record : map.records) {
      if (!record.is_reference) continue;
      lines_.line(4, fmt::format("    a layer that was stored before (number {})", record.number));
    }
  }

  void append_map_references(const Tmxd_mxd& document) {
    for (const auto* map : document.maps) {
      if (!map->repeat) continue;
      lines_.line(2, fmt::format("a map that was stored before (number {})", map->number));
    }
  }

  Text_lines& lines_;
  const Report& report_;
  Content content_;
  References references_;
};

}  // namespace

void append_tree(Text_lines& lines, const Report& report, References references) {
  Tree(lines, report, Content::everything, references).append();
}

void append_symbols(Text_lines& lines, const Report& report) {
  Tree(lines, report, Content::symbols, References::hidden).append();
}

}  // namespace mxdinfo
