#include "mxdinfo/output/csv_cell.h"

#include <algorithm>

#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

// Spreadsheets may also split cells at semicolons and bars.
bool ends_cell(char c) {
  return c == ';' || c == '|';
}

// An apostrophe in front keeps a text from being taken for a formula.
std::string without_formulas(std::string_view text) {
  std::string out;
  bool at_start = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (at_start) {
      const std::size_t first = std::min(text.find_first_not_of(" '\"", i), text.size() - 1);
      if (std::string_view("=+-@").find(text[first]) != std::string_view::npos) out += '\'';
    }
    out += text[i];
    at_start = ends_cell(text[i]);
  }
  return out;
}

}  // namespace

std::string csv_cell(std::string_view value) {
  const std::string text = without_formulas(escape_controls(value));
  if (text.find_first_of(",;|\"") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

}  // namespace mxdinfo
