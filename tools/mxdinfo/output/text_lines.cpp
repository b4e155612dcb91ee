#include "mxdinfo/output/text_lines.h"

#include "mxdinfo/facts/facts.h"

namespace mxdinfo {
namespace {

const char* swatch_shape(Symbol_family family) {
  switch (family) {
    case Symbol_family::marker:
      return "● ";
    case Symbol_family::line:
      return "━━";
    case Symbol_family::fill:
      return "██";
  }
  return "";
}

}  // namespace

std::string Text_lines::swatch(const mxd::Tmxd_symbol* symbol) const {
  if (!color_) return {};
  const auto color = main_color(symbol);
  if (!color) return "   ";
  const auto channel = [&](std::size_t at) { return std::stoi(color->substr(at, 2), nullptr, 16); };
  return fmt::format("\x1b[38;2;{};{};{}m{}\x1b[0m ", channel(1), channel(3), channel(5),
                     swatch_shape(family_of(*symbol)));
}

}  // namespace mxdinfo
