// One page about all documents, to look at: an index, layer trees, legends. It needs no script and
// fetches nothing.
#include <fmt/format.h>

#include <algorithm>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/names_by_number.h"
#include "mxdinfo/output/html_style.h"
#include "mxdinfo/output/report_writer.h"
#include "mxdinfo/svg/svg.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// A name of the document's: escaped, and unable to turn the direction of the text around it.
std::string isolated(const std::string& text) {
  return "<bdi>" + escape_html(text) + "</bdi>";
}

std::string plural(std::size_t count, std::string_view what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

// One document's section.
class Section {
 public:
  explicit Section(const Report& report) : report_(report) {}

  std::string html() {
    const Summary summary = summary_of(report_);
    out_ += fmt::format("<section id=\"d{}\">\n<h2>{}</h2>\n", report_.index + 1,
                        isolated(report_.name));
    if (!report_.failure.empty()) {
      out_ += fmt::format("<p class=\"bad\">{}</p>\n</section>\n", escape_html(report_.failure));
      return std::move(out_);
    }
    out_ += fmt::format("<p class=\"soft\">{}, {}, {}</p>\n", plural(summary.maps, "map"),
                        plural(summary.layers, "layer"), plural(report_.size, "byte"));
    append_errors();
    for (const auto& map : report_.content.maps) append_map(*map);
    out_ += "</section>\n";
    return std::move(out_);
  }

 private:
  void append_errors() {
    if (report_.errors.empty()) return;
    out_ += fmt::format("<details><summary class=\"bad\">{} could not be decoded</summary>\n<ul>\n",
                        plural(report_.errors.size(), "object"));
    for (const Decode_error& error : report_.errors) {
      out_ += fmt::format("<li>{}, number {}, at byte {}</li>\n", escape_html(error.type),
                          error.number, error.position);
    }
    out_ += "</ul></details>\n";
  }

  void append_map(const Tmxd_map& map) {
    if (map.repeat) {
      out_ += fmt::format("<p class=\"soft\">Map {} again</p>\n", repeated(map));
      return;
    }
    names_.add(map, map.name);
    out_ += fmt::format("<h3><span class=\"soft\">Map</span> {}</h3>\n", isolated(utf8(map.name)));
    open_details();
    append_coordinate_system(map.coordinate_system.get());
    close_details();
    append_layers(placed_layers(map));
  }

  std::string repeated(const Tmxd_obj& object) const {
    const auto name = names_.name_of(object);
    return name ? isolated(*name) : fmt::format("number {}", object.number);
  }

  // Groups hold the lists of their members.
  void append_layers(const std::vector<Layer_place>& places) {
    if (places.empty()) return;
    out_ += "<ul>\n";
    std::size_t depth = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (; depth > places[i].groups.size(); --depth) out_ += "</ul></li>\n";
      append_layer(*places[i].layer);
      const bool has_members =
          i + 1 < places.size() && places[i + 1].groups.size() > places[i].groups.size();
      out_ += has_members ? "<ul>\n" : "</li>\n";
      if (has_members) ++depth;
    }
    for (; depth > 0; --depth) out_ += "</ul></li>\n";
    out_ += "</ul>\n";
  }

  void append_layer(const Tmxd_layer& layer) {
    if (layer.repeat) {
      out_ += fmt::format("<li><p class=\"soft\">{} again</p>", repeated(layer));
      return;
    }
    names_.add(layer, layer.layer_name);
    const auto shown = visible(layer);
    const std::string geometry = geometry_of(layer);
    out_ += shown && !*shown ? "<li class=\"off\">" : "<li>";
    out_ += fmt::format(
        "<p class=\"layer\"><span class=\"box {}\">{}</span><b>{}</b>"
        "<span class=\"kind\">{}{}{}</span></p>\n",
        !shown   ? "none"
        : *shown ? "on\" title=\"visible"
                 : "\" title=\"not visible",
        shown && *shown ? "✓" : "", isolated(utf8(layer.layer_name)), kind_of(layer),
        geometry.empty() ? "" : ", ", geometry);
    append_details(layer);
    if (legend_class_count(layer) != 0) append_legend(*renderer_of(layer));
  }

  void append_details(const Tmxd_layer& layer) {
    open_details();
    append_detail("Data", source_of(layer).text());
    append_detail("Scales", scales_text(layer));
    append_coordinate_system(coordinate_system_of(layer));
    if (const auto* renderer = renderer_of(layer)) append_drawn(layer, *renderer);
    close_details();
  }

  void append_drawn(const Tmxd_layer& layer, const Tmxd_renderer& renderer) {
    append_detail("Drawn", drawn_text(renderer));
    if (legend_class_count(layer) == 0) append_detail("Legend", "not read");
  }

  void open_details() {
    out_ += "<dl>";
    details_at_ = out_.size();
  }
  void close_details() {
    if (out_.size() == details_at_) {
      out_.erase(details_at_ - std::string_view("<dl>").size());
    } else {
      out_ += "</dl>\n";
    }
  }

  void append_detail(std::string_view label, const std::string& text) {
    if (!text.empty()) out_ += fmt::format("<dt>{}</dt><dd>{}</dd>\n", label, isolated(text));
  }

  void append_coordinate_system(const Tmxd_coordinate_system* system) {
    if (!system) return;
    out_ += fmt::format(
        "<dt>Coordinates</dt><dd><details><summary>{}</summary><pre>{}</pre></details></dd>\n",
        isolated(coordinate_system_name(*system)), escape_html(coordinate_system_text(*system)));
  }

  void append_legend(const Tmxd_renderer& renderer) {
    out_ += "<div class=\"legend\">";
    for (const auto* group : legend_groups(renderer)) {
      const std::string heading = utf8(group->label);
      if (!heading.empty() && !group->legend_classes.empty()) {
        out_ += fmt::format("<p class=\"heading\">{}</p>\n", isolated(heading));
      }
      for (const auto& item : group->legend_classes) {
        out_ += fmt::format("<p>{}<span>{}</span></p>\n", swatch_svg(item->symbol_slot.get()),
                            isolated(utf8(item->label)));
      }
    }
    out_ += "</div>";
  }

  const Report& report_;
  std::string out_;
  std::size_t details_at_ = 0;
  Names_by_number names_;
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

  std::string document(const Report& report) const override { return Section(report).html(); }

  // The index comes last, when everything is counted; the page shows it first.
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
        "<th class=\"n\">Layers</th><th class=\"n\">Not decoded</th></tr>\n";
    for (std::size_t i = 0; i < documents.size(); ++i) {
      const Summary& summary = documents[i];
      table += fmt::format("<tr><td><a href=\"#d{}\">{}</a></td>", i + 1, isolated(summary.name));
      table += summary.failure.empty()
                   ? fmt::format(
                         "<td class=\"n\">{}</td><td class=\"n\">{}</td>"
                         "<td class=\"n\">{}</td></tr>\n",
                         summary.maps, summary.layers, summary.errors)
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
