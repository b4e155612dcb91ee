#include <fmt/format.h>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/inventory/diff.h"

namespace mxdinfo {
namespace {

// A value in a few words.
std::string value_text(const Json& value) {
  constexpr std::size_t max_length = 60;
  if (value.is_null()) return "none";
  if (value.is_string()) return escape_controls(shortened(value.get<std::string>()));
  if (value.is_object()) {
    // Systems of coordinates have a name, legend classes a symbol, symbols and renderers a kind.
    for (const char* key : {"name", "symbol", "kind"}) {
      if (const auto found = value.find(key); found != value.end()) return value_text(*found);
    }
  }
  return escape_controls(shortened(dump_json(value, -1), max_length));
}

char sign_of(const std::string& change) {
  return change == "added" ? '+' : change == "removed" ? '-' : '~';
}

}  // namespace

std::string diff_text(const Json& diff) {
  std::string text;
  for (const char* change : {"removed", "added"}) {
    for (const Json& source : diff["sources"][change]) {
      text += fmt::format("  {} source {}\n", sign_of(change), value_text(source));
    }
  }
  for (const Json& item : diff["items"]) {
    const std::string change = item["change"];
    const bool is_map = item["layer"].is_null();
    text += fmt::format("  {} {}", sign_of(change),
                        is_map ? "map " + value_text(item["map"])
                               : value_text(item["map"]) + " / " + value_text(item["layer"]));
    if (change == "added" && !item["source"].is_null()) {
      text += ": " + value_text(item["source"]);
    }
    text += '\n';
    for (const Json& each : item["differences"]) {
      const std::string at = each["at"].is_null() ? "" : value_text(each["at"]);
      text +=
          fmt::format("      {}{}{}: {} -> {}\n", value_text(each["part"]), at.empty() ? "" : " ",
                      at, value_text(each["old"]), value_text(each["new"]));
    }
  }
  return text;
}

}  // namespace mxdinfo
