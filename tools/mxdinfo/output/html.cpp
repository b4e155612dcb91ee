// One page about all documents: an index, totals, layer trees and legends. It loads nothing. Its
// script filters and sorts.
#include <fmt/format.h>

#include <map>
#include <mutex>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/plural.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/html_parts.h"
#include "mxdinfo/output/html_script.h"
#include "mxdinfo/output/html_style.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

class Html_writer final : public Report_writer {
 public:
  explicit Html_writer(const Options& options) : single_(options.single) {}

  std::string begin() const override {
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
        "style-src 'unsafe-inline'; script-src 'sha256-{}'\">\n"
        "<meta name=\"generator\" content=\"mxdinfo {}\">\n"
        "<title>Map documents</title>\n<style>{}</style>\n<script>{}</script>\n</head>\n<body>\n"
        "<a class=\"skip\" href=\"#index\">To the index</a>\n<main>\n",
        page_script_hash, MXDINFO_VERSION, page_style, page_script);
  }

  // The totals take a part of the size.
  Written_document document(const Report& report) const override {
    const std::size_t max_size = max_output_size(report);
    if (single_) return document_section(report, max_size, false);
    constexpr std::size_t parts = 4;
    Document_uses uses = page_uses(report, max_size / parts);
    Written_document section = document_section(report, max_size - max_size / parts, true);
    const std::scoped_lock lock(mutex_);
    uses_.insert_or_assign(report.index, std::move(uses));
    return section;
  }

  // The index is written last, when the counts are known; style and script put it first.
  std::string end(std::span<const Summary> documents) const override {
    Totals totals;
    for (const Summary& summary : documents) totals.add(summary);
    std::string page = fmt::format(
        "</main>\n<header id=\"index\"><h1>Map documents</h1>\n<p class=\"soft\">{}, {}, "
        "{}{}</p>\n",
        plural(totals.documents, "document"), plural(totals.maps, "map"),
        plural(totals.layers, "layer"),
        totals.unreadable == 0 ? "" : fmt::format(", {} unreadable", totals.unreadable));
    page +=
        "<div role=\"search\" id=\"tools\" hidden><label>Filter <input type=\"search\" "
        "id=\"filter\" "
        "autocomplete=\"off\"></label><button type=\"button\" id=\"open\">Open or close "
        "all</button>"
        "<output id=\"found\"></output></div></header>\n";
    if (documents.size() > 1) page += index(documents);
    std::vector<const Document_uses*> uses;
    for (const auto& [number, each] : uses_) uses.push_back(&each);
    return page + totals_tables(uses) + "</body>\n</html>\n";
  }

 private:
  static std::string index(std::span<const Summary> documents) {
    std::string table =
        "<nav aria-label=\"Documents\" id=\"documents\"><table>\n<thead><tr><th "
        "scope=\"col\">Document"
        "</th><th scope=\"col\" class=\"n\">Maps</th><th scope=\"col\" class=\"n\">Layers</th>"
        "<th scope=\"col\" class=\"n\">Losses</th></tr></thead>\n<tbody>\n";
    for (std::size_t i = 0; i < documents.size(); ++i) {
      const Summary& summary = documents[i];
      table += fmt::format("<tr><th scope=\"row\"><a href=\"#{}\">{}</a></th>", document_id(i),
                           isolated(summary.name));
      table += summary.failure.empty()
                   ? fmt::format(
                         "<td class=\"n\">{}</td><td class=\"n\">{}</td>"
                         "<td class=\"n\">{}</td></tr>\n",
                         summary.maps, summary.layers, summary.losses)
                   : fmt::format("<td class=\"bad\" colspan=\"3\">{}</td></tr>\n",
                                 escape_html(summary.failure));
    }
    return table + "</tbody></table></nav>\n";
  }

  const bool single_;
  mutable std::mutex mutex_;
  mutable std::map<std::size_t, Document_uses> uses_;
};

}  // namespace

std::unique_ptr<Report_writer> make_html_writer(const Options& options) {
  return std::make_unique<Html_writer>(options);
}

}  // namespace mxdinfo
