// Lines of the text: indented, on one line each, colored where that is welcome.
#pragma once

#include <fmt/format.h>

#include <string>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "symbology/symbol.h"

namespace mxdinfo {

class Text_lines {
 public:
  explicit Text_lines(bool color) : color_(color) {}

  // Names must have passed on_one_line.
  void line(std::size_t indent, std::string_view text) {
    out_.append(indent, ' ').append(text).append("\n");
  }
  void detail(std::size_t indent, std::string_view label, const std::string& text) {
    if (!text.empty()) line(indent, fmt::format("{}: {}", label, escape_controls(text)));
  }
  std::string bold(std::string_view text) const {
    return color_ ? fmt::format("\x1b[1m{}\x1b[0m", text) : std::string(text);
  }
  // Two columns in the symbol's color and a blank; nothing where there are no colors.
  std::string swatch(const mxd::Tmxd_symbol* symbol) const;
  std::string take() { return std::move(out_); }

 private:
  std::string out_;
  bool color_;
};

// The views of one document.
std::string tree_view(const mxd::Tmxd_mxd& document, const std::string& name, bool color);
std::string symbols_view(const mxd::Tmxd_mxd& document, const std::string& name, bool color);
std::string layers_view(const mxd::Tmxd_mxd& document, const std::string& name, bool color);
std::string sources_view(const mxd::Tmxd_mxd& document, const std::string& name, bool color);
std::string coordinate_systems_view(const mxd::Tmxd_mxd& document, const std::string& name,
                                    bool color);

// "Layers / Base map / Rivers", on one line.
std::string full_name(const mxd::Tmxd_map& map, const Layer_place& place);

}  // namespace mxdinfo
