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
};

bool is_printable(std::uint32_t unit) {
  return unit >= 0x20 && unit != 0x7F && !(unit >= 0xD800 && unit < 0xE000) && unit != 0xFFFF;
}

std::string context_of(Bytes bytes, const Form& form, std::size_t at) {
  constexpr std::size_t max_units = 60;
  const std::uint32_t last_unit = form.unit_size == 1 ? 0x7E : 0xFFFE;
  const auto is_text = [&](std::size_t position) {
    const std::uint32_t unit = form.unit(bytes, position);
    return is_printable(unit) && unit <= last_unit;
  };
  std::size_t begin = at;
  for (std::size_t i = 0; i < max_units && begin >= form.unit_size; ++i) {
    if (!is_text(begin - form.unit_size)) break;
    begin -= form.unit_size;
  }
  std::size_t end = at + form.pattern.size() * form.unit_size;
  for (std::size_t i = 0; i < max_units && end + form.unit_size <= bytes.size(); ++i) {
    if (!is_text(end)) break;
    end += form.unit_size;
  }
  std::string text;
  for (; begin < end; begin += form.unit_size) append_utf8(text, form.unit(bytes, begin));
  return text;
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
    const std::size_t layer = hit.layer ? hit.layer->index + 1 : 0;
    if (!seen.emplace(hit.map, layer).second) continue;
    if (hit.layer) {
      const bool is_named = fold_case(name_of(hit.layer->record())).find(wanted) != wanted.npos;
      if (is_named || (hit.layer->layer() && is_known(*hit.layer))) continue;
    }
    hit.context = context_of(bytes, *form, at);
    hits.push_back(std::move(hit));
  }
  return hits;
}

}  // namespace mxdinfo
