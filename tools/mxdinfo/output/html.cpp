// One page about all documents: an index, layer trees and legends. It needs no script and loads
// nothing.
#include <fmt/format.h>

#include <set>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/legend_entries.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/plural.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/html_style.h"
#include "mxdinfo/output/report_writer.h"
#include "mxdinfo/svg/svg.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// A text of the document: escaped, and without effect on the direction of the text around it.
std::string isolated(const std::string& text) {
  return "<bdi>" + escape_html(text) + "</bdi>";
}

// One document's section.
class Section {
 public:
  explicit Section(const Report& report) : report_(report), out_(max_output_size(report)) {}

  Written_document html() {
    out_.append(fmt::format("<section id=\"d{}\">\n<h2>{}</h2>\n", report_.index + 1,
                            isolated(report_.name)));
    if (report_.failure.empty()) {
      append_content();
    } else {
      out_.append(fmt::format("<p class=\"bad\">{}</p>\n", escape_html(report_.failure)));
    }
    if (out_.is_full()) {
      out_.append_end("<p class=\"bad\">The rest is left out: it is too long.</p>\n");
    }
    out_.append_end("</section>\n");
    return {out_.take(), !out_.is_full()};
  }

 private:
  void append_content() {
    const Summary summary = summary_of(report_);
    out_.append(fmt::format("<p class=\"soft\">{}, {}, {}</p>\n", plural(summary.maps, "map"),
                            plural(summary.layers, "layer"), plural(report_.size, "byte")));
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
    std::string item = "<li>" + (loss.map ? isolated(path_of(loss)) + ": " : std::string());
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
    std::string details = coordinate_system_detail(map.map->coordinate_system.get());
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
    const char* item = shown && !*shown ? "<li class=\"off\">" : "<li>";
    const char* box = !shown   ? R"(<span class="box none"></span>)"
                      : *shown ? R"(<span class="box on" title="visible">✓</span>)"
                               : R"(<span class="box" title="not visible"></span>)";
    if (!out_.append(fmt::format(
            "{}<p class=\"layer\">{}<b>{}</b><span class=\"kind{}\">{}</span></p>\n", item, box,
            isolated(name_of(record)), layer ? "" : " bad", escape_html(page_kind(listed))))) {
      return false;
    }
    if (layer) {
      append_details(layer_details(record, *layer));
      append_legend(record, *layer);
    }
    return true;
  }

  static std::string page_kind(const Listed_layer& listed) {
    if (!listed.layer()) return kind_text(listed.record());
    const std::string geometry = geometry_of(*listed.layer());
    const std::string kind = kind_word(listed.record().kind());
    return geometry.empty() ? kind : kind + ", " + geometry;
  }

  static std::string layer_details(const Layer_record& record, const Tmxd_layer& layer) {
    std::string details = detail("Data", source_of(layer).text());
    details += detail("Scales", scales_text(layer));
    details += detail("Query", utf8(record.facts.definition_query.value_or(Wide_string())));
    details += detail("Labels", labels_text(record));
    details += detail("Display field", display_field_of(layer));
    details += coordinate_system_detail(coordinate_system_of(layer));
    if (const auto* renderer = renderer_of(layer)) {
      details += detail("Drawn", drawn_text(*renderer, record.facts));
      if (legend_class_count(layer) == 0) details += detail("Legend", "not read");
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

  static std::string coordinate_system_detail(const Tmxd_coordinate_system* system) {
    if (!system) return {};
    return fmt::format(
        "<dt>Coordinates</dt><dd><details><summary>{}</summary><pre>{}</pre></details></dd>\n",
        isolated(coordinate_system_text_line(*system)),
        escape_html(coordinate_system_text(*system)));
  }

  void append_legend(const Layer_record& record, const Tmxd_layer& layer) {
    const auto* renderer = renderer_of(layer);
    if (!renderer) return;
    const auto entries = legend_entries(*renderer, record.facts);
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
    constexpr std::string_view attributes = R"(class="swatch" role="img" width="64" height="32")";
    if (!symbol || symbol->number == 0) return swatch_svg(symbol, attributes);
    const std::string id = fmt::format("d{}s{}", report_.index + 1, symbol->number);
    const bool is_first = drawn_.insert(symbol->number).second;
    if (is_first) return swatch_svg(symbol, fmt::format(R"({} id="{}")", attributes, id));
    if (!symbol->repeat) return swatch_svg(symbol, attributes);
    return fmt::format(R"(<svg {}><use href="#{}"/></svg>)", attributes, id);
  }

  const Report& report_;
  Bounded_text out_;
  std::set<std::uint16_t> drawn_;
};

class Html_writer final : public Report_writer {
 public:
  std::string begin() const override {
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" "
        "content=\"default-src 'none'; style-src 'unsafe-inline'\">\n"
        "<meta name=\"generator\" content=\"mxdinfo {}\">\n"
        "<title>Map documents</title>\n<style>{}</style>\n</head>\n<body>\n",
        MXDINFO_VERSION, page_style);
  }

  Written_document document(const Report& report) const override { return Section(report).html(); }

  // The index is written last, when the counts are known; the style shows it first.
  std::string end(std::span<const Summary> documents) const override {
    Totals totals;
    for (const Summary& summary : documents) totals.add(summary);
    std::string page = fmt::format(
        "<header><h1>Map documents</h1>\n<p class=\"soft\">{}, {}, {}{}</p></header>\n",
        plural(totals.documents, "document"), plural(totals.maps, "map"),
        plural(totals.layers, "layer"),
        totals.unreadable == 0 ? "" : fmt::format(", {} unreadable", totals.unreadable));
    if (documents.size() > 1) page += index(documents);
    return page + "</body>\n</html>\n";
  }

 private:
  static std::string index(std::span<const Summary> documents) {
    std::string table =
        "<nav><div class=\"wide\"><table>\n<tr><th>Document</th><th class=\"n\">Maps</th>"
        "<th class=\"n\">Layers</th><th class=\"n\">Losses</th></tr>\n";
    for (std::size_t i = 0; i < documents.size(); ++i) {
      const Summary& summary = documents[i];
      table += fmt::format("<tr><td><a href=\"#d{}\">{}</a></td>", i + 1, isolated(summary.name));
      table += summary.failure.empty()
                   ? fmt::format(
                         "<td class=\"n\">{}</td><td class=\"n\">{}</td>"
                         "<td class=\"n\">{}</td></tr>\n",
                         summary.maps, summary.layers, summary.losses)
                   : fmt::format("<td class=\"bad\" colspan=\"3\">{}</td></tr>\n",
                                 escape_html(summary.failure));
    }
    return table + "</table></div></nav>\n";
  }
};

}  // namespace

std::unique_ptr<Report_writer> make_html_writer() {
  return std::make_unique<Html_writer>();
}

}  // namespace mxdinfo
