// The things of a view, each once with the numbers of documents and layers that use it.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <set>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/uses.h"
#include "mxdinfo/output/csv_cell.h"
#include "mxdinfo/output/json_parts.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

struct Row {
  std::vector<std::string> cells;
  std::size_t documents = 0;
  std::size_t layers = 0;
};

// Texts of paths that differ only in case are one thing.
std::string key_of(const Use& use) {
  std::string key;
  for (const std::string& cell : use.cells) key += fold_case(cell) + '\0';
  return key;
}

class Totals_writer final : public Report_writer {
 public:
  explicit Totals_writer(const Options& options)
      : format_(options.format),
        csv_(options),
        view_(options.view),
        with_states_(options.check_sources),
        columns_(use_columns(view_, with_states_)) {}

  // Only counts; the rows are written at the end.
  Written_document document(const Report& report) const override {
    const auto uses = uses_of(report, view_, with_states_);
    std::set<Row*> in_document;
    const std::scoped_lock lock(mutex_);
    for (const Use& use : uses) {
      Row& row = rows_[key_of(use)];
      // The same text whatever the order of the documents.
      if (row.cells.empty() || use.cells < row.cells) row.cells = use.cells;
      if (use.by_layer) ++row.layers;
      if (in_document.insert(&row).second) ++row.documents;
    }
    return {};
  }

  std::string end(std::span<const Summary> /*documents*/) const override {
    std::vector<const Row*> rows;
    for (const auto& [key, row] : rows_) rows.push_back(&row);
    std::stable_sort(rows.begin(), rows.end(), [](const Row* a, const Row* b) {
      return a->documents != b->documents ? a->documents > b->documents : a->layers > b->layers;
    });
    return format_ == Format::csv ? csv(rows) : format_ == Format::json ? json(rows) : text(rows);
  }

 private:
  using Rows = std::vector<const Row*>;

  std::string csv(const Rows& rows) const {
    std::string out(csv_.begin());
    out += fmt::format("{},documents,layers\n", fmt::join(columns_, ","));
    for (const Row* row : rows) {
      auto cells = row->cells;
      cells.push_back(fmt::format("{}", row->documents));
      cells.push_back(fmt::format("{}", row->layers));
      out += csv_.row(cells);
    }
    return out;
  }

  std::string json(const Rows& rows) const {
    Json list = Json::array();
    for (const Row* row : rows) {
      Json item;
      for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::string& cell = row->cells[i];
        const bool is_number = columns_[i] == "epsg" && !cell.empty();
        item[columns_[i]] = is_number ? Json(std::stoi(cell)) : text_or_null(cell);
      }
      item["documents"] = row->documents;
      item["layers"] = row->layers;
      list.push_back(std::move(item));
    }
    return dump_json(list, 2) + "\n";
  }

  static std::string text(const Rows& rows) {
    std::string out = "documents   layers\n";
    for (const Row* row : rows) {
      std::string thing;
      for (const std::string& cell : row->cells) {
        if (!cell.empty()) thing += (thing.empty() ? "" : ", ") + cell;
      }
      out += fmt::format("{:9} {:8}  {}\n", row->documents, row->layers, escape_controls(thing));
    }
    return out;
  }

  Format format_;
  Csv_format csv_;
  View view_;
  bool with_states_;
  std::vector<std::string> columns_;
  mutable std::mutex mutex_;
  mutable std::map<std::string, Row> rows_;
};

}  // namespace

std::unique_ptr<Report_writer> make_totals_writer(const Options& options) {
  return std::make_unique<Totals_writer>(options);
}

}  // namespace mxdinfo
