#include "outline/epsg_code.h"

#include <algorithm>
#include <charconv>

namespace mxd {
namespace {

constexpr std::string_view blanks = " \t\r\n";

void skip_blanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
}

bool take(std::string_view& text, std::string_view expected) {
  skip_blanks(text);
  if (!text.starts_with(expected)) return false;
  text.remove_prefix(expected.size());
  return true;
}

// AUTHORITY["EPSG",4326] or AUTHORITY["EPSG","4326"].
std::optional<std::int32_t> stated_code(std::string_view text) {
  if (!take(text, "AUTHORITY") && !take(text, "ID")) return std::nullopt;
  if (!take(text, "[") || !take(text, "\"EPSG\"") || !take(text, ",")) return std::nullopt;
  take(text, "\"");
  std::int32_t code = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), code);
  if (error != std::errc() || code <= 0) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  take(text, "\"");
  if (!take(text, "]")) return std::nullopt;
  return code;
}

}  // namespace

std::optional<std::int32_t> epsg_code(std::string_view wkt) {
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < wkt.size(); ++i) {
    if (wkt[i] == '"') quoted = !quoted;
    if (quoted) continue;
    if (wkt[i] == '[') ++depth;
    if (wkt[i] == ']' && --depth == 0) break;
    if (wkt[i] != ',' || depth != 1) continue;
    if (const auto code = stated_code(wkt.substr(i + 1))) return code;
  }
  return std::nullopt;
}

}  // namespace mxd
