#include "mxdinfo/facts/deep_search.h"

#include <algorithm>
#include <set>
#include <span>
#include <utility>

#include "mxdinfo/facts/display_text.h"
#include "storage/unicode.h"

namespace mxdinfo {
namespace {

using namespace mxd;

using Bytes = std::span<const std::uint8_t>;

std::uint32_t folded(std::uint32_t unit) {
  constexpr std::uint32_t to_lower = 0x20;
  if (unit < 0x80) return unit >= 'A' && unit <= 'Z' ? unit + to_lower : unit;
  std::string text;
  if (unit >= 0xD800 && unit < 0xE000) return unit;
  append_utf8(text, unit);
  return first_code_point(fold_case(text)).value;
}

bool is_printable(std::uint32_t unit) {
  return unit >= 0x20 && unit != 0x7F && !(unit >= 0xD800 && unit < 0xE000) && unit != 0xFFFF;
}

// Two ASCII characters, read as one unit of UTF-16.
bool is_ascii_pair(std::uint32_t unit) {
  const auto is_ascii = [](std::uint32_t byte) { return byte >= 0x20 && byte < 0x7F; };
  return is_ascii(unit & 0xFF) && is_ascii(unit >> 8);
}

// One of the two forms in which the stream may have the text.
struct Form {
  std::size_t unit_size;
  std::vector<std::uint32_t> pattern;

  std::uint32_t unit(Bytes bytes, std::size_t at) const {
    const std::uint32_t low = bytes[at];
    return unit_size == 1 ? low : low | std::uint32_t{bytes[at + 1]} << 8;
  }
  bool is_at(Bytes bytes, std::size_t at) const {
    if (pattern.size() * unit_size > bytes.size() - at) return false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
      const std::uint32_t found = unit(bytes, at + i * unit_size);
      // Most units differ at once; only letters beyond ASCII are folded the long way.
      if (found != pattern[i] && (found < 0x80) != (pattern[i] < 0x80)) return false;
      if (found != pattern[i] && folded(found) != pattern[i]) return false;
    }
    return true;
  }
  bool is_text(Bytes bytes, std::size_t at) const {
    const std::uint32_t found = unit(bytes, at);
    return is_printable(found) && found <= (unit_size == 1 ? 0x7EU : 0xFFFEU);
  }
};

std::string context_of(Bytes bytes, const Form& form, std::size_t at) {
  constexpr std::size_t max_units = 60;
  const auto& pattern = form.pattern;
  const bool may_have_pairs = std::any_of(pattern.begin(), pattern.end(), is_ascii_pair);
  std::size_t begin = at;
  std::size_t narrow_begin = at;
  for (std::size_t i = 0; i < max_units && begin >= form.unit_size; ++i) {
    const std::size_t before = begin - form.unit_size;
    if (!form.is_text(bytes, before)) break;
    const std::uint32_t unit = form.unit(bytes, before);
    // A pair is of another text, with one byte per character. Only the units below U+0100 after it
    // are then certain to belong to the match.
    if (!may_have_pairs && is_ascii_pair(unit)) {
      begin = narrow_begin;
      break;
    }
    if (unit < 0x100 && narrow_begin == begin) narrow_begin = before;
    begin = before;
  }
  std::size_t end = at + pattern.size() * form.unit_size;
  for (std::size_t i = 0; i < max_units && end + form.unit_size <= bytes.size(); ++i) {
    if (!form.is_text(bytes, end)) break;
    end += form.unit_size;
  }
  std::string text;
  for (; begin < end; begin += form.unit_size) append_utf8(text, form.unit(bytes, begin));
  return text;
}

const Wide_string& name_at(const Deep_hit& hit) {
  static const Wide_string none;
  if (!hit.layer) return hit.map ? hit.map->map->name : none;
  const Layer_record& record = hit.layer->record();
  return record.layer ? record.layer->layer_name : record.name;
}

// Where the text with the first match ends if it is the name and nothing more; else nothing.
std::optional<std::size_t> end_of_name(Bytes bytes, const Form& form, std::size_t at,
                                       const Wide_string& name) {
  const auto match =
      std::search(name.begin(), name.end(), form.pattern.begin(), form.pattern.end(),
                  [](Wide_char unit, std::uint32_t wanted) { return folded(unit) == wanted; });
  const std::size_t before = static_cast<std::size_t>(match - name.begin()) * form.unit_size;
  if (match == name.end() || before > at) return std::nullopt;
  const std::size_t begin = at - before;
  const std::size_t size = name.size() * form.unit_size;
  if (size > bytes.size() - begin) return std::nullopt;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (form.unit(bytes, begin + i * form.unit_size) != name[i]) return std::nullopt;
  }
  const std::size_t end = begin + size;
  // A text has its length in bytes before it. Most end with a NUL, and some lengths count
  // otherwise.
  const bool has_length =
      begin >= 4 && (bytes[begin - 4] | std::size_t{bytes[begin - 3]} << 8) == size;
  const bool is_whole =
      (begin < form.unit_size || !form.is_text(bytes, begin - form.unit_size)) &&
      (has_length || bytes.size() - end < form.unit_size || !form.is_text(bytes, end));
  return is_whole ? std::optional(end) : std::nullopt;
}

// Finds the map and layer of a position. The layers are listed once.
class Layer_places {
 public:
  explicit Layer_places(const Report& report) {
    for (const Map_outline& map : report.outline.maps) {
      maps_.emplace_back(&map, listed_layers(map));
    }
  }

  Deep_hit at(std::uint64_t position) const {
    Deep_hit hit;
    hit.position = position;
    for (const auto& [map, layers] : maps_) {
      if (position < map->position || position >= map->end) continue;
      hit.map = map;
      hit.layer = layer_at(layers, position);
    }
    return hit;
  }

 private:
  // The last layer that begins at or before the position, unless it ends before it.
  static std::optional<Listed_layer> layer_at(const std::vector<Listed_layer>& layers,
                                              std::uint64_t position) {
    const auto after = std::upper_bound(
        layers.begin(), layers.end(), position,
        [](std::uint64_t at, const Listed_layer& layer) { return at < layer.record().position; });
    if (after == layers.begin()) return std::nullopt;
    const Layer_record& record = (after - 1)->record();
    const bool is_inside = record.length == 0 || position < record.position + record.length;
    return is_inside ? std::optional(*(after - 1)) : std::nullopt;
  }

  std::vector<std::pair<const Map_outline*, std::vector<Listed_layer>>> maps_;
};

std::vector<Form> forms_of(const std::string& wanted) {
  Form wide{2, {}};
  for (std::string_view rest = wanted; !rest.empty();) {
    const Code_point c = first_code_point(rest);
    Wide_string units;
    append_utf16(units, c.value);
    for (const Wide_char unit : units) wide.pattern.push_back(unit);
    rest.remove_prefix(c.length);
  }
  std::vector<Form> forms{wide};
  const bool is_ascii =
      std::all_of(wide.pattern.begin(), wide.pattern.end(), [](auto unit) { return unit < 0x80; });
  if (is_ascii) forms.push_back({1, wide.pattern});
  return forms;
}

}  // namespace

std::vector<Deep_hit> deep_search(const Report& report, const std::string& wanted,
                                  const std::function<bool(const Listed_layer&)>& is_known) {
  std::vector<Deep_hit> hits;
  std::set<std::pair<const Map_outline*, std::size_t>> seen;
  const Bytes bytes = report.maps.bytes();
  const auto forms = forms_of(wanted);
  const Layer_places places(report);
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto form = std::find_if(forms.begin(), forms.end(),
                                   [&](const Form& each) { return each.is_at(bytes, at); });
    if (form == forms.end()) continue;
    Deep_hit hit = places.at(at);
    const std::pair place(hit.map, hit.layer ? hit.layer->index + 1 : 0);
    if (seen.count(place) != 0) continue;
    if (const auto end = end_of_name(bytes, *form, at, name_at(hit))) {
      // Each name is compared once, not once per match in it.
      at = *end - 1;
      continue;
    }
    seen.insert(place);
    if (hit.layer && hit.layer->layer() && is_known(*hit.layer)) continue;
    hit.context = context_of(bytes, *form, at);
    hits.push_back(std::move(hit));
  }
  return hits;
}

}  // namespace mxdinfo
