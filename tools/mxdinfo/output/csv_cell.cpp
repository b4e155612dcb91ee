#include "mxdinfo/output/csv_cell.h"

#include <algorithm>

#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

// Spreadsheets may also split cells at semicolons and bars.
constexpr std::string_view separators = ";|";

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

bool is_letter_or_digit(char c) {
  const char lower = static_cast<char>(c | 0x20);
  return is_digit(c) || (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

// "-12.5": a sign and digits, which no spreadsheet evaluates.
bool is_number(std::string_view text) {
  text.remove_prefix(1);
  const bool digits = std::all_of(text.begin(), text.end(),
                                  [](char c) { return is_digit(c) || c == '.' || c == ' '; });
  return digits && !text.empty() && is_digit(text.front());
}

// Whether a spreadsheet would evaluate the part of a cell. Signs alone, as in "- - -", are text.
bool is_formula(std::string_view part) {
  const std::size_t first = part.find_first_not_of(" '\"");
  if (first == part.npos) return false;
  part.remove_prefix(first);
  if (part.front() == '=' || part.front() == '@') return part.size() > 1;
  if (part.front() != '+' && part.front() != '-') return false;
  return std::any_of(part.begin(), part.end(), is_letter_or_digit) && !is_number(part);
}

std::string without_formulas(std::string_view text) {
  std::string out;
  while (true) {
    const std::size_t end = std::min(text.find_first_of(separators), text.size());
    if (is_formula(text.substr(0, end))) out += '\'';
    out += text.substr(0, end);
    if (end == text.size()) return out;
    out += text[end];
    text.remove_prefix(end + 1);
  }
}

}  // namespace

std::string Csv_format::cell(std::string_view value) const {
  const std::string escaped = escape_controls(value);
  const std::string text = formula_guard_ ? without_formulas(escaped) : escaped;
  if (text.find_first_of(",;|\"") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

std::string Csv_format::row(const std::vector<std::string>& texts) const {
  std::string row;
  for (const std::string& text : texts) {
    if (&text != texts.data()) row += ',';
    row += cell(text);
  }
  return row + '\n';
}

}  // namespace mxdinfo
