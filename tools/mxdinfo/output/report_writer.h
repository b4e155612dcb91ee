// Writers of the output formats.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "mxdinfo/facts/report.h"

namespace mxdinfo {

struct Written_document {
  std::string text;
  // False if the bound on the size of the output cut something.
  bool is_complete = true;
  // The layers that a search was for.
  std::size_t matches = 0;
};

// Writes reports as text: begin(), each document in input order, end().
class Report_writer {
 public:
  Report_writer() = default;
  Report_writer(const Report_writer&) = delete;
  Report_writer& operator=(const Report_writer&) = delete;
  virtual ~Report_writer() = default;

  virtual std::string begin() const { return {}; }
  // Called by several threads, in any order.
  virtual Written_document document(const Report& report) const = 0;
  virtual std::string end(std::span<const Summary> /*documents*/) const { return {}; }
};

// A row of the index of several pages.
struct Page_entry {
  std::string title;
  std::string file;
  Totals totals;
};
std::string page_index(std::span<const Page_entry> pages);

struct Options;
std::unique_ptr<Report_writer> make_writer(const Options& options);

std::unique_ptr<Report_writer> make_text_writer(const Options& options);
std::unique_ptr<Report_writer> make_layer_finder(const Options& options);
std::unique_ptr<Report_writer> make_totals_writer(const Options& options);
std::unique_ptr<Report_writer> make_json_writer(const Options& options);
std::unique_ptr<Report_writer> make_csv_writer(const Options& options);
std::unique_ptr<Report_writer> make_html_writer(const Options& options);
std::unique_ptr<Report_writer> make_loss_writer(const Options& options);

}  // namespace mxdinfo
