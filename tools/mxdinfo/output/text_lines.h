// Lines of the text output: indented, bounded, colored where that is wanted.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/report_writer.h"
#include "symbology/symbol.h"

namespace mxdinfo {

class Text_lines {
 public:
  Text_lines(const Report& report, bool color) : out_(max_output_size(report)), color_(color) {}

  // Names must have passed escape_controls().
  void line(std::size_t indent, std::string_view text) {
    out_.append(std::string(indent, ' ').append(text).append("\n"));
  }
  // Nothing if the text is empty.
  void detail(std::size_t indent, std::string_view label, const std::string& text) {
    if (!text.empty()) line(indent, fmt::format("{}: {}", label, escape_controls(text)));
  }
  std::string bold(std::string_view text) const {
    return color_ ? fmt::format("\x1b[1m{}\x1b[0m", text) : std::string(text);
  }
  // Two columns in the symbol's color and a blank; empty without colors.
  std::string swatch(const mxd::Tmxd_symbol* symbol) const;

  bool is_full() const { return out_.is_full(); }
  // The last line replaces all that did not fit.
  Written_document take(const std::string& last_line = "(The rest is left out: it is too long.)") {
    if (out_.is_full()) out_.append_end(last_line + "\n");
    return {out_.take(), !out_.is_full()};
  }

 private:
  Bounded_text out_;
  bool color_;
};

}  // namespace mxdinfo
