#include "outline/map_outline.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>

#include "core/read_helpers.h"

namespace mxd {
namespace {

constexpr std::uint64_t version_size = 2;
constexpr std::uint64_t fields_start = Object_start::size + version_size;

// A string of an image service layer: a word of 8, int32 count of units, and unless that is 0 the
// units and a NUL.
std::optional<Wide_string> read_property_text(Byte_view& bytes) {
  std::uint16_t type = 0;
  std::int32_t units = 0;
  if (!read_numbers(bytes, type, units) || type != 8 || units < 0) return std::nullopt;
  if (static_cast<std::uint64_t>(units) > bytes.left() / 2) return std::nullopt;
  Wide_string text;
  for (std::int32_t i = 0; i < units; ++i) {
    std::uint16_t unit = 0;
    if (!read_number(bytes, unit)) return std::nullopt;
    text.push_back(static_cast<Wide_char>(unit));
  }
  return units == 0 || bytes.skip(2) ? std::optional(text) : std::nullopt;
}

// Begins with the count of its properties, the second of which is the name.
std::optional<Wide_string> read_image_service_name(Byte_view& bytes) {
  if (!bytes.skip(4) || !read_property_text(bytes)) return std::nullopt;
  return read_property_text(bytes);
}

// Leaves the position where reading ended, also when it failed.
std::optional<Wide_string> read_name(Byte_view& bytes, Layer_kind kind) {
  if (kind == Layer_kind::image_service) return read_image_service_name(bytes);
  if (kind == Layer_kind::raster && !bytes.skip(2)) return std::nullopt;
  return read_text(bytes);
}

// Where a string that begins at `start` ends, or nothing if it does not end before `end`.
std::optional<std::uint64_t> string_end(const Byte_search& stream, std::uint64_t start,
                                        std::uint64_t end) {
  Byte_view bytes = stream.view(start, end);
  std::int32_t size = 0;
  if (!read_number(bytes, size) || size < 0 || !bytes.skip(static_cast<std::uint64_t>(size))) {
    return std::nullopt;
  }
  return bytes.tell();
}

class Reader {
 public:
  Reader(Byte_search& stream, Layer_list_reader& lists, Map_outline& map)
      : stream_(stream),
        lists_(lists),
        map_(map),
        records_(map.records),
        name_bytes_left_(map.end - map.position) {}

  void read() {
    const std::uint64_t name_end = map_.position + fields_start + 4 + 2 * map_.map->name.size();
    find_decoded(name_end);
    std::uint64_t layers_end = name_end;
    if (const auto list = lists_.map_list(name_end, map_.end)) {
      map_.counted_layers = list->count;
      for (const Stored_layer& layer : list->layers) {
        add(layer, std::nullopt);
        layers_end = layer.position + layer.length;
      }
    }
    add_all_members();
    add_unlisted();
    sort_records();
    nest_unlisted();
    if (!map_.counted_layers) nest_by_count();
    read_facts();
    map_.extent = find_extent(stream_, layers_end, map_.end);
  }

 private:
  void find_decoded(std::uint64_t from) {
    places_ = find_objects(stream_, from, map_.decoded_end, decoded_layer_ids());
    auto place = places_.begin();
    for (const auto& layer : map_.map->layers) {
      place = std::find_if(place, places_.end(), [&](const auto& p) { return p.is(*layer); });
      if (place == places_.end()) return;
      decoded_.emplace(place++->position, layer);
    }
  }

  std::uint64_t end_of(const Layer_record& record) const {
    return record.length == 0 ? map_.end : record.position + record.length;
  }

  // An object that is in two lists is one layer.
  void add(const Stored_layer& stored, std::optional<std::size_t> parent) {
    if (!positions_.insert(stored.position).second) return;
    Layer_record record;
    record.position = stored.position;
    record.length = stored.length;
    record.parent = parent;
    // The class id of an unlisted layer is in the map; its number may be just after it.
    Byte_view bytes = stream_.view(stored.position, stream_.stream().size());
    Object_start start;
    read_object_start(bytes, start);
    record.class_id = start.class_id;
    record.number = start.number;
    record.is_reference = stored.length == Object_start::size;
    if (const auto decoded = decoded_.find(stored.position); decoded != decoded_.end()) {
      record.layer = decoded->second;
      record.is_reference = record.layer->repeat != 0;
      record.name = record.layer->layer_name.substr(0, record.layer->layer_name.find(Wide_char{0}));
      decoded_.erase(decoded);
    } else if (!record.is_reference && bytes.skip(version_size)) {
      record.name = name_of(bytes.tell(), end_of(record), record.kind());
    }
    records_.push_back(std::move(record));
  }

  // In some unknown kinds a word comes before the name.
  Wide_string name_of(std::uint64_t position, std::uint64_t end, Layer_kind kind) {
    auto name = name_at(position, end, kind);
    if (!name && kind == Layer_kind::unknown) name = name_at(position + 2, end, kind);
    return name.value_or(Wide_string());
  }

  // Layers of unlisted groups may overlap, and their names with them. All names together are read
  // from no more bytes than the map has.
  std::optional<Wide_string> name_at(std::uint64_t position, std::uint64_t end, Layer_kind kind) {
    Byte_view bytes = stream_.view(position, std::min(end, position + name_bytes_left_));
    auto name = read_name(bytes, kind);
    const std::uint64_t bytes_read = bytes.tell() - position;
    name_bytes_left_ -= bytes_read;
    stream_.count(bytes_read);
    return name;
  }

  // Members are added at the end, and so looked at in turn.
  void add_all_members() {
    for (; visited_ < records_.size(); ++visited_) {
      const auto list = member_list(records_[visited_]);
      if (!list) continue;
      records_[visited_].counted_members = list->count;
      for (const Stored_layer& member : list->layers) add(member, visited_);
    }
  }

  std::optional<Layer_list> member_list(const Layer_record& record) {
    const Layer_kind kind = record.kind();
    const bool has_members = kind == Layer_kind::group || kind == Layer_kind::basemap;
    if (!has_members || record.is_reference) return std::nullopt;
    const std::uint64_t end = end_of(record);
    const auto name_end = string_end(stream_, record.position + fields_start, end);
    if (!name_end) return std::nullopt;
    return kind == Layer_kind::group ? lists_.group_list(*name_end, end)
                                     : lists_.basemap_list(*name_end, end);
  }

  // Decoded layers that no list has; an unlisted group may list the next of them.
  void add_unlisted() {
    while (!decoded_.empty()) {
      const std::uint64_t position = decoded_.begin()->first;
      add({position, 0}, std::nullopt);
      decoded_.erase(position);
      add_all_members();
    }
  }

  void sort_records() {
    std::vector<std::size_t> order(records_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t i) { return records_[i].position; });
    std::vector<std::size_t> new_index(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) new_index[order[i]] = i;
    std::vector<Layer_record> sorted;
    sorted.reserve(records_.size());
    for (const std::size_t i : order) {
      Layer_record& record = sorted.emplace_back(std::move(records_[i]));
      if (record.parent) record.parent = new_index[*record.parent];
    }
    records_ = std::move(sorted);
  }

  // A layer that is in no list belongs to the innermost listed one whose object it is part of.
  void nest_unlisted() {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < records_.size(); ++i) {
      Layer_record& record = records_[i];
      while (!open.empty() && end_of(records_[open.back()]) <= record.position) open.pop_back();
      if (record.length != 0) {
        open.push_back(i);
      } else if (!record.parent && !open.empty()) {
        record.parent = open.back();
      }
    }
  }

  // In a map without a list, a group counts the layers that follow it.
  void nest_by_count() {
    struct Open_group {
      std::size_t index;
      std::int32_t left;
    };
    std::vector<Open_group> open;
    for (std::size_t i = 0; i < records_.size(); ++i) {
      Layer_record& record = records_[i];
      if (record.parent) continue;
      if (!open.empty()) {
        record.parent = open.back().index;
        --open.back().left;
      }
      const auto* group = as<Tmxd_group_layer>(record.layer);
      if (group && !group->repeat) open.push_back({i, group->layer_count});
      while (!open.empty() && open.back().left <= 0) open.pop_back();
    }
  }

  // A layer's fields end where the next layer begins, as they do for the load.
  void read_facts() {
    for (Layer_record& record : records_) {
      const auto* layer = as<Tmxd_feature_layer>(record.layer);
      if (!layer || layer->repeat) continue;
      const auto next =
          std::ranges::upper_bound(places_, record.position, {}, &Object_place::position);
      const std::uint64_t fields_end = next == places_.end() ? map_.decoded_end : next->position;
      const std::uint64_t end = std::min(end_of(record), fields_end);
      record.facts = read_feature_facts(*layer, stream_, record.position, end);
    }
  }

  Byte_search& stream_;
  Layer_list_reader& lists_;
  Map_outline& map_;
  std::vector<Layer_record>& records_;
  // Every place of a decoded class, and the decoded layers that have no record yet, by position.
  std::vector<Object_place> places_;
  std::map<std::uint64_t, const Tmxd_layer*> decoded_;
  std::set<std::uint64_t> positions_;
  std::size_t visited_ = 0;
  std::uint64_t name_bytes_left_;
};

}  // namespace

std::vector<Object_place> find_objects(Byte_search& stream, std::uint64_t from, std::uint64_t to,
                                       std::span<const Guid> class_ids) {
  std::vector<Object_place> places;
  while (const auto position = stream.first(from, to, class_ids)) {
    Object_place place{*position, {}};
    Byte_view bytes = stream.view(*position, stream.stream().size());
    if (read_object_start(bytes, place.start)) places.push_back(place);
    from = *position + 1;
  }
  return places;
}

void read_map_outline(Byte_search& stream, Layer_list_reader& lists, Map_outline& map) {
  Reader(stream, lists, map).read();
}

}  // namespace mxd
