// A document on the page: its properties, losses, and layers with their legends.
#include <fmt/format.h>

#include <map>
#include <optional>
#include <set>
#include <utility>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/plural.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/html_parts.h"
#include "mxdinfo/svg/svg.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// One document's section.
class Section {
 public:
  Section(const Report& report, std::size_t max_size, bool folded)
      : report_(report), out_(max_size), folded_(folded && report.failure.empty()) {}

  Written_document html() {
    out_.append(fmt::format("<section id=\"{}\">", document_id(report_.index)));
    const std::string name = fmt::format("<h2>{}</h2>", isolated(report_.name));
    if (folded_) {
      // Where scripts run, browsers make elements of it when the document is opened.
      out_.append(
          fmt::format("<details><summary>{}<span class=\"soft\">{}</span></summary><noscript>",
                      name, counts()));
    } else {
      const auto [look, line] = report_.failure.empty()
                                    ? std::pair("soft", counts())
                                    : std::pair("bad", escape_html(report_.failure));
      out_.append(fmt::format("{}\n<p class=\"{}\">{}</p>\n", name, look, line));
    }
    if (report_.failure.empty()) append_content();
    if (out_.is_full()) {
      out_.append_end("<p class=\"bad\">The rest is left out: it is too long.</p>\n");
    }
    out_.append_end(folded_ ? "</noscript></details></section>\n" : "</section>\n");
    return {out_.take(), !out_.is_full()};
  }

 private:
  std::string counts() const {
    const Summary summary = summary_of(report_);
    std::string text = plural(summary.maps, "map") + ", " + plural(summary.layers, "layer") + ", " +
                       plural(report_.size, "byte");
    if (summary.losses != 0) text += ", " + plural(summary.losses, "loss", "losses");
    return text;
  }

  void append_content() {
    if (folded_) out_.append("<p class=\"back\"><a href=\"#index\">Index</a></p>\n");
    std::string details;
    for (const auto& [label, text] : property_texts(report_.outline.document)) {
      details += detail(label, text);
    }
    append_details(details);
    append_losses();
    for (const Map_outline& map : report_.outline.maps) append_map(map);
  }

  void append_losses() {
    const auto losses = losses_of(report_);
    if (losses.empty()) return;
    if (!out_.append(fmt::format("<details><summary class=\"bad\">{}</summary>\n<ul>\n",
                                 plural(losses.size(), "loss", "losses")))) {
      return;
    }
    for (const Loss& loss : losses) {
      if (!append_loss(loss)) break;
    }
    out_.append_end("</ul></details>\n");
  }

  bool append_loss(const Loss& loss) {
    std::string item = "<li>";
    if (loss.layer) {
      item += fmt::format("<a href=\"#{}\">{}</a>: ", id_of(*loss.layer), isolated(path_of(loss)));
    } else if (loss.map) {
      item += isolated(path_of(loss)) + ": ";
    }
    item += escape_html(text_of(loss));
    if (loss.error) {
      item += fmt::format(" <span class=\"soft\">({}, number {}, at byte {})</span>",
                          loss.error->type, loss.error->number, loss.error->position);
    }
    return out_.append(item + "</li>\n");
  }

  void append_map(const Map_outline& map) {
    out_.append(
        fmt::format("<h3><span class=\"soft\">Map</span> {}</h3>\n", isolated(name_of(map))));
    const Tmxd_coordinate_system* system = map.map->coordinate_system.get();
    std::string details =
        coordinate_system_detail(system, system ? coordinate_system_text_line(*system) : "");
    if (map.extent) details += detail("Extent", extent_text(*map.extent));
    append_details(details);
    append_layers(listed_layers(map));
  }

  // Layers that contain others hold the lists of these.
  void append_layers(const std::vector<Listed_layer>& layers) {
    if (layers.empty() || !out_.append("<ul>\n")) return;
    std::size_t depth = 0;
    for (std::size_t i = 0; i < layers.size() && !out_.is_full(); ++i) {
      const std::size_t own_depth = shown_depth(layers[i]);
      for (; depth > own_depth; --depth) out_.append_end("</ul></li>\n");
      if (!append_layer(layers[i])) break;
      const bool has_members = i + 1 < layers.size() && shown_depth(layers[i + 1]) > own_depth;
      out_.append_end(has_members ? "<ul>\n" : "</li>\n");
      if (has_members) ++depth;
    }
    for (; depth > 0; --depth) out_.append_end("</ul></li>\n");
    out_.append_end("</ul>\n");
  }

  static std::size_t shown_depth(const Listed_layer& layer) {
    constexpr std::size_t max_depth = 40;
    return std::min(layer.depth, max_depth);
  }

  // Leaves the list item open. False if not even its start fits.
  bool append_layer(const Listed_layer& listed) {
    const Layer_record& record = listed.record();
    const Tmxd_layer* layer = listed.layer();
    const auto shown = layer ? visible(*layer) : std::nullopt;
    const auto* renderer = layer ? renderer_of(*layer) : nullptr;
    const auto entries =
        renderer ? legend_entries(*renderer, record.facts) : std::vector<Legend_entry>();
    // As in ArcMap, the only symbol needs no label of its own.
    const bool single = entries.size() == 1 && is_unlabelled(entries.front(), name_of(record));
    if (!out_.append(fmt::format(
            "<li id=\"{}\"{}><p class=\"layer\">{}{}<b>{}</b><span "
            "class=\"kind{}\">{}</span>{}</p>\n",
            id_of(listed), shown && !*shown ? " class=\"off\"" : "", visibility_box(shown),
            single ? swatch(entries.front().symbol) : "", isolated(name_of(record)),
            layer ? "" : " bad", escape_html(page_kind(listed)), up_link()))) {
      return false;
    }
    if (!single) append_legend(entries);
    if (layer) append_details(layer_details(listed, *layer));
    return true;
  }

  static std::string_view visibility_box(std::optional<bool> shown) {
    if (!shown) return R"(<span class="box none"></span>)";
    return shown == true ? R"(<span class="box on" role="img" aria-label="visible">✓</span>)"
                         : R"(<span class="box" role="img" aria-label="not visible"></span>)";
  }

  static bool is_unlabelled(const Legend_entry& entry, const std::string& layer_name) {
    const bool headed = entry.group && !utf8(entry.group->label).empty();
    return !headed && (entry.label.empty() || entry.label == layer_name) &&
           classified_text(entry).empty();
  }

  std::string up_link() const {
    return fmt::format("<a class=\"up\" href=\"#{}\" aria-label=\"to the document\">↑</a>",
                       document_id(report_.index));
  }

  // Of the layer's number among all listed layers.
  std::string id_of(const Listed_layer& listed) {
    if (numbers_.empty()) {
      for (const Map_outline& map : report_.outline.maps) {
        for (const Listed_layer& each : listed_layers(map)) {
          numbers_.emplace(std::pair(each.map, each.index), numbers_.size() + 1);
        }
      }
    }
    return layer_id(report_.index, numbers_.at({listed.map, listed.index}));
  }

  static std::string page_kind(const Listed_layer& listed) {
    if (!listed.layer()) return kind_text(listed.record());
    const std::string geometry = geometry_of(*listed.layer());
    const std::string kind = kind_word(listed.record().kind());
    return geometry.empty() ? kind : kind + ", " + geometry;
  }

  std::string layer_details(const Listed_layer& listed, const Tmxd_layer& layer) const {
    const Layer_record& record = listed.record();
    std::string details = detail("Data", source_of(layer).text());
    const Source_state* state = report_.source_state(&layer);
    if (state) details += detail("Data is", state_text(*state));
    details += detail("Scales", scales_text(layer));
    details += detail("Query", utf8(record.facts.definition_query.value_or(Wide_string())));
    details += detail("Labels", labels_text(record));
    details += detail("Display field", display_field_of(layer));
    details +=
        coordinate_system_detail(coordinate_system_of(layer), coordinate_system_text_line(listed));
    details += detail("Drawn", drawn_text(layer, record.facts));
    if (renderer_of(layer) && legend_class_count(layer) == 0) {
      details += detail("Legend", "not read");
    }
    return details;
  }

  void append_details(const std::string& details) {
    if (!details.empty()) out_.append("<dl>" + details + "</dl>\n");
  }

  static std::string detail(std::string_view label, const std::string& text) {
    if (text.empty()) return {};
    return fmt::format("<dt>{}</dt><dd>{}</dd>\n", label, isolated(text));
  }

  static std::string coordinate_system_detail(const Tmxd_coordinate_system* system,
                                              const std::string& line) {
    if (!system) return {};
    return fmt::format(
        "<dt>Coordinates</dt><dd><details><summary>{}</summary><pre>{}</pre></details></dd>\n",
        isolated(line), escape_html(coordinate_system_text(*system)));
  }

  void append_legend(const std::vector<Legend_entry>& entries) {
    if (entries.empty() || !out_.append("<div class=\"legend\">")) return;
    const Tmxd_legend_group* group = nullptr;
    for (const Legend_entry& entry : entries) {
      if (out_.is_full()) break;
      if (entry.group && entry.group != group && !utf8(entry.group->label).empty()) {
        out_.append(
            fmt::format("<p class=\"heading\">{}</p>\n", isolated(utf8(entry.group->label))));
      }
      group = entry.group;
      append_legend_entry(entry);
    }
    out_.append_end("</div>");
  }

  void append_legend_entry(const Legend_entry& entry) {
    const std::string classified = classified_text(entry);
    std::string values;
    if (!classified.empty() && classified != entry.label) {
      values = fmt::format(" <span class=\"soft\">{}</span>", isolated(classified));
    }
    out_.append(fmt::format("<p>{}<span>{}{}</span></p>\n", swatch(entry.symbol),
                            isolated(entry.label), values));
  }

  // A symbol to which several legend classes refer is drawn once.
  std::string swatch(const Tmxd_symbol* symbol) {
    std::string attributes = R"(class="swatch" role="img" width="64" height="32")";
    if (is_pale(symbol)) attributes += " data-pale=\"\"";
    if (!symbol || symbol->number == 0) return swatch_svg(symbol, attributes);
    const std::string id = fmt::format("{}s{}", document_id(report_.index), symbol->number);
    const bool is_first = drawn_.insert(symbol->number).second;
    if (is_first) return swatch_svg(symbol, fmt::format(R"({} id="{}")", attributes, id));
    if (!symbol->repeat) return swatch_svg(symbol, attributes);
    return fmt::format(R"(<svg {0} aria-labelledby="{1}"><use href="#{1}"/></svg>)", attributes,
                       id);
  }

  // Such symbols would not be seen on white.
  static bool is_pale(const Tmxd_symbol* symbol) {
    const auto color = main_color(symbol);
    if (!color) return false;
    const auto is_light = [&](std::size_t at) { return color->compare(at, 2, "e8") >= 0; };
    return is_light(1) && is_light(3) && is_light(5);
  }

  const Report& report_;
  Bounded_text out_;
  const bool folded_;
  std::map<std::pair<const Map_outline*, std::size_t>, std::size_t> numbers_;
  std::set<std::uint16_t> drawn_;
};

}  // namespace

std::string isolated(const std::string& text) {
  return "<bdi>" + escape_html(text) + "</bdi>";
}

std::string document_id(std::size_t document_index) {
  return fmt::format("d{}", document_index + 1);
}

std::string layer_id(std::size_t document_index, std::size_t layer) {
  return fmt::format("d{}l{}", document_index + 1, layer);
}

Written_document document_section(const Report& report, std::size_t max_size, bool folded) {
  return Section(report, max_size, folded).html();
}

}  // namespace mxdinfo
