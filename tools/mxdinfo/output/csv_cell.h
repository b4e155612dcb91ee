// Cells of a CSV table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mxdinfo/cli/options.h"

namespace mxdinfo {

class Csv_format {
 public:
  explicit Csv_format(const Options& options)
      : byte_order_mark_(options.byte_order_mark), formula_guard_(options.formula_guard) {}

  // A byte order mark, which spreadsheets need to take the table for UTF-8, unless it is unwanted.
  std::string_view begin() const { return byte_order_mark_ ? "\xEF\xBB\xBF" : ""; }
  // The text without control characters, quoted where needed. Where a spreadsheet would take it for
  // a formula, it gets an apostrophe in front.
  std::string cell(std::string_view text) const;
  std::string row(const std::vector<std::string>& texts) const;

 private:
  bool byte_order_mark_;
  bool formula_guard_;
};

}  // namespace mxdinfo
