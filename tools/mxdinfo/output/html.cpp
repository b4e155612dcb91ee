// One page about all documents: an index, totals, layer trees and legends. It loads nothing. Its
// script filters and sorts.
#include <fmt/format.h>

#include <initializer_list>
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

std::string page_begin() {
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

// With the controls of the script. The location is HTML about where the page belongs.
std::string page_header(const Totals& totals, const std::string& location) {
  std::string html = fmt::format(
      "</main>\n<header id=\"index\"><h1>Map documents</h1>\n{}<p class=\"soft\">{}, {}, "
      "{}{}</p>\n",
      location, plural(totals.documents, "document"), plural(totals.maps, "map"),
      plural(totals.layers, "layer"),
      totals.unreadable == 0 ? "" : fmt::format(", {} unreadable", totals.unreadable));
  return html +
         "<div role=\"search\" id=\"tools\" hidden><label>Filter <input type=\"search\" "
         "id=\"filter\" autocomplete=\"off\"></label><button type=\"button\" id=\"open\">Open or "
         "close all</button><output id=\"found\"></output></div></header>\n";
}

// The first column names the rows; the others are numbers.
std::string table_begin(std::initializer_list<std::string_view> columns) {
  std::string table = "<nav aria-label=\"Index\" id=\"documents\"><table>\n<thead><tr>";
  for (const std::string_view column : columns) {
    const bool names = column == *columns.begin();
    table += fmt::format("<th scope=\"col\"{}>{}</th>", names ? "" : " class=\"n\"", column);
  }
  return table + "</tr></thead>\n<tbody>\n";
}

std::string row_begin(const std::string& link, const std::string& text) {
  return fmt::format("<tr><th scope=\"row\"><a href=\"{}\">{}</a></th>", link, isolated(text));
}

std::string numbers(std::initializer_list<std::size_t> values) {
  std::string cells;
  for (const std::size_t value : values) cells += fmt::format("<td class=\"n\">{}</td>", value);
  return cells;
}

constexpr std::string_view table_end = "</tbody></table></nav>\n";
constexpr std::string_view page_end = "</body>\n</html>\n";

std::string document_index(std::span<const Summary> documents) {
  std::string table = table_begin({"Document", "Maps", "Layers", "Losses"});
  for (std::size_t i = 0; i < documents.size(); ++i) {
    const Summary& summary = documents[i];
    table += row_begin(fmt::format("#{}", document_id(i)), summary.name);
    table += summary.failure.empty() ? numbers({summary.maps, summary.layers, summary.losses})
                                     : fmt::format("<td class=\"bad\" colspan=\"3\">{}</td>",
                                                   escape_html(summary.failure));
    table += "</tr>\n";
  }
  return table.append(table_end);
}

class Html_writer final : public Report_writer {
 public:
  explicit Html_writer(const Options& options)
      : single_(options.single), title_(options.page_title) {}

  std::string begin() const override { return page_begin(); }

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
    const std::string location =
        title_.empty()
            ? ""
            : fmt::format("<p>{} · <a href=\"index.html\">All folders</a></p>\n", isolated(title_));
    std::string page = page_header(totals, location);
    if (documents.size() > 1) page += document_index(documents);
    std::vector<const Document_uses*> uses;
    for (const auto& [number, each] : uses_) uses.push_back(&each);
    return (page + totals_tables(uses)).append(page_end);
  }

 private:
  const bool single_;
  const std::string title_;
  mutable std::mutex mutex_;
  mutable std::map<std::size_t, Document_uses> uses_;
};

}  // namespace

std::string page_index(std::span<const Page_entry> pages) {
  Totals all;
  std::string table =
      table_begin({"Folder", "Documents", "Unreadable", "Maps", "Layers", "Losses"});
  for (const auto& [title, file, totals] : pages) {
    table +=
        row_begin(file, title) +
        numbers({totals.documents, totals.unreadable, totals.maps, totals.layers, totals.losses}) +
        "</tr>\n";
    all.documents += totals.documents;
    all.unreadable += totals.unreadable;
    all.maps += totals.maps;
    all.layers += totals.layers;
  }
  return (page_begin() + page_header(all, "") + table).append(table_end).append(page_end);
}

std::unique_ptr<Report_writer> make_html_writer(const Options& options) {
  return std::make_unique<Html_writer>(options);
}

}  // namespace mxdinfo
