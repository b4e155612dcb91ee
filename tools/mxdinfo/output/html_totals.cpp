// The page's tables by data source, coordinate system and loss.
#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/plural.h"
#include "mxdinfo/output/html_parts.h"

namespace mxdinfo {
namespace {

using namespace mxd;
using Kind = Page_use::Kind;

class Collection {
 public:
  explicit Collection(std::size_t max_size) : room_(max_size) {}

  void add(Kind kind, const std::string& text, const std::string& user, std::size_t layer) {
    // An escaped byte becomes six; the rest is for the elements around the texts.
    constexpr std::size_t escaped = 6;
    constexpr std::size_t elements = 300;
    Page_use use{kind, shortened(text), shortened(user), layer};
    const std::size_t size = escaped * (use.text.size() + use.user.size()) + elements;
    if (use.text.empty() || size > room_) return;
    room_ -= size;
    uses_.push_back(std::move(use));
  }
  std::vector<Page_use> take() { return std::move(uses_); }

 private:
  std::size_t room_;
  std::vector<Page_use> uses_;
};

void add_coordinate_system(Collection& found, const Tmxd_coordinate_system* system,
                           const std::string& user, std::size_t layer) {
  if (system) found.add(Kind::coordinate_system, coordinate_system_text_line(*system), user, layer);
}

// A thing of one kind, and who uses it.
struct Page_row {
  struct User {
    const Document_uses* document;
    const Page_use* use;
  };

  std::string text;
  std::size_t documents = 0;
  std::size_t layers = 0;
  std::vector<User> users;
};

// The most used first.
std::vector<Page_row> rows_of(Kind kind, const std::vector<const Document_uses*>& documents) {
  std::map<std::string, Page_row> rows;
  for (const Document_uses* document : documents) {
    for (const Page_use& use : document->uses) {
      if (use.kind != kind) continue;
      Page_row& row = rows[fold_case(use.text)];
      if (row.text.empty()) row.text = use.text;
      if (row.users.empty() || row.users.back().document != document) ++row.documents;
      if (use.layer != 0) ++row.layers;
      row.users.push_back({document, &use});
    }
  }
  std::vector<Page_row> sorted;
  for (auto& [key, row] : rows) sorted.push_back(std::move(row));
  std::stable_sort(sorted.begin(), sorted.end(), [](const Page_row& a, const Page_row& b) {
    return a.documents != b.documents ? a.documents > b.documents : a.layers > b.layers;
  });
  return sorted;
}

std::string links(const Page_row& row) {
  constexpr std::size_t max_links = 200;
  std::string list = "<ul>";
  for (std::size_t i = 0; i < std::min(row.users.size(), max_links); ++i) {
    const auto& [document, use] = row.users[i];
    const std::string id = use->layer == 0 ? document_id(document->document_index)
                                           : layer_id(document->document_index, use->layer);
    const std::string separator = use->user.empty() ? "" : ": ";
    list += fmt::format("<li><a href=\"#{}\">{}</a></li>", id,
                        isolated(document->name) + separator + isolated(use->user));
  }
  if (row.users.size() > max_links) {
    list += fmt::format("<li>and {} more</li>", row.users.size() - max_links);
  }
  return list + "</ul>";
}

std::string table(std::string_view title, const std::vector<Page_row>& rows) {
  if (rows.empty()) return {};
  std::string text = fmt::format(
      "<details><summary>{0}: {1}</summary>\n<div><table><thead><tr><th scope=\"col\">{0}</th>"
      "<th scope=\"col\" class=\"n\">Documents</th><th scope=\"col\" class=\"n\">Layers</th></tr>"
      "</thead><tbody>\n",
      title, rows.size());
  for (const Page_row& row : rows) {
    text += fmt::format(
        "<tr><th scope=\"row\"><details><summary>{}</summary><noscript>{}</noscript></details></th>"
        "<td class=\"n\">{}</td><td class=\"n\">{}</td></tr>\n",
        isolated(row.text), links(row), row.documents, row.layers);
  }
  return text + "</tbody></table></div></details>\n";
}

}  // namespace

Document_uses page_uses(const Report& report, std::size_t max_size) {
  Collection found(max_size);
  std::size_t layers = 0;
  std::map<std::pair<const Map_outline*, std::size_t>, std::size_t> numbers;
  for (const Map_outline& map : report.outline.maps) {
    add_coordinate_system(found, map.map->coordinate_system.get(), name_of(map), 0);
    for (const Listed_layer& listed : listed_layers(map)) {
      numbers[{&map, listed.index}] = ++layers;
      const Tmxd_layer* layer = listed.layer();
      if (!layer) continue;
      found.add(Kind::source, source_of(*layer).text(), full_name(listed), layers);
      add_coordinate_system(found, coordinate_system_of(*layer), full_name(listed), layers);
    }
  }
  for (const Loss& loss : losses_of(report)) {
    const std::size_t layer = loss.layer ? numbers[{loss.map, loss.layer->index}] : 0;
    found.add(Kind::loss, text_of(loss), path_of(loss), layer);
  }
  return {report.index, report.name, found.take()};
}

std::string totals_tables(const std::vector<const Document_uses*>& documents) {
  const std::string tables =
      table("Data sources", rows_of(Kind::source, documents)) +
      table("Coordinate systems", rows_of(Kind::coordinate_system, documents)) +
      table("Losses", rows_of(Kind::loss, documents));
  if (tables.empty()) return {};
  return "<section id=\"totals\" aria-labelledby=\"totals-head\">\n<h2 "
         "id=\"totals-head\">Totals</h2>\n" +
         tables + "</section>\n";
}

}  // namespace mxdinfo
