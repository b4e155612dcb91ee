#include "mxdinfo/facts/legend_entries.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <map>
#include <span>
#include <utility>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"

namespace mxdinfo {
namespace {

using namespace mxd;

void append_group(std::vector<Legend_entry>& entries, const Tmxd_legend_group& group) {
  for (const auto& item : group.legend_classes) {
    Legend_entry& entry = entries.emplace_back();
    entry.group = &group;
    entry.label = utf8(item->label);
    entry.symbol = item->symbol_slot.get();
  }
}

std::vector<Legend_entry> simple_entries(const Tmxd_simple_renderer& renderer) {
  std::vector<Legend_entry> entries;
  append_group(entries, renderer.legend_group);
  if (entries.empty()) entries.emplace_back();
  if (const auto* symbol = renderer.symbol_slot.get()) entries.front().symbol = symbol;
  return entries;
}

// One text per field; the whole text where the number of parts differs.
std::vector<std::string> split(const std::string& text, const std::string& separator,
                               std::size_t fields) {
  if (fields < 2 || separator.empty()) return {text};
  std::vector<std::string> parts;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = text.find(separator, begin);
    parts.push_back(text.substr(begin, end - begin));
    if (end == std::string::npos) break;
    begin = end + separator.size();
  }
  return parts.size() == fields ? parts : std::vector{text};
}

// The text between the values of several fields: two characters, as ", ", with their size in bytes
// before them. Empty if there is none.
std::string value_separator(const Tmxd_unique_value_renderer& renderer) {
  constexpr std::uint8_t size_with_nul = 6;
  const std::span<const std::uint8_t> bytes = renderer.bytes2;
  if (bytes.empty() || bytes[0] != size_with_nul) return {};
  Wide_string text;
  for (std::size_t at = 4; at < 8; at += 2) {
    text.push_back(static_cast<Wide_char>(bytes[at] | bytes[at + 1] << 8));
  }
  return utf8(text);
}

std::vector<Legend_entry> unique_value_entries(const Tmxd_unique_value_renderer& renderer) {
  std::vector<Legend_entry> entries;
  // A value names its class by group and index, counted in the order of the file.
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> places;
  std::int32_t group_index = 0;
  for (const auto* group : {&renderer.other_leg_grp, &renderer.main_leg_grp}) {
    if (!group->exists) continue;
    for (std::size_t i = 0; i < group->legend_classes.size(); ++i) {
      places[{group_index, static_cast<std::int32_t>(i)}] = entries.size() + i;
    }
    append_group(entries, *group);
    ++group_index;
  }
  // Alone, a group holds the values' classes; before another, "all other values".
  const bool has_default = group_index == 2 && !renderer.other_leg_grp.legend_classes.empty();
  if (has_default) entries.front().all_other_values = true;

  const std::string separator = value_separator(renderer);
  const std::size_t fields = renderer_fields(renderer).size();
  std::vector<Legend_entry> unplaced;
  for (const auto& value : renderer.unique_values) {
    auto texts = split(utf8(value.wstr), separator, fields);
    const auto place = places.find({value.int1, value.int2});
    Legend_entry& entry = place == places.end() ? unplaced.emplace_back() : entries[place->second];
    entry.values.push_back(std::move(texts));
  }
  for (Legend_entry& entry : unplaced) entries.push_back(std::move(entry));
  return entries;
}

std::vector<Legend_entry> class_breaks_entries(const Tmxd_class_breaks_renderer& renderer,
                                               bool ascending) {
  std::vector<Legend_entry> entries;
  append_group(entries, renderer.main_leg_grp);
  const auto count = static_cast<std::size_t>(renderer.ranges.size());
  if (entries.size() < count) entries.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto range = static_cast<std::int32_t>(ascending ? i : count - 1 - i);
    entries[i].range = {renderer.ranges.min_bnd(range), renderer.ranges.max_bnd(range)};
  }
  return entries;
}

}  // namespace

std::vector<Legend_entry> legend_entries(const Tmxd_renderer& renderer,
                                         const Feature_facts& facts) {
  return visit(
      renderer,
      Overloaded{
          [](const Tmxd_simple_renderer& simple) { return simple_entries(simple); },
          [](const Tmxd_unique_value_renderer& unique) { return unique_value_entries(unique); },
          [&](const Tmxd_class_breaks_renderer& breaks) {
            return class_breaks_entries(breaks, facts.classes_ascend.value_or(true));
          },
      });
}

std::string classified_text(const Legend_entry& entry) {
  constexpr std::size_t max_length = 10'000;
  constexpr std::string_view arcmap_label = "<all other values>";
  if (entry.range) return fmt::format("{:.10g} to {:.10g}", entry.range->min, entry.range->max);
  if (entry.all_other_values) return entry.label == arcmap_label ? "" : "all other values";
  std::string text;
  for (const auto& values : entry.values) {
    if (text.size() > max_length) return text + "; …";
    if (!text.empty()) text += "; ";
    text += fmt::format("{}", fmt::join(values, ", "));
  }
  return text;
}

}  // namespace mxdinfo
