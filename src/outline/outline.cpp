#include "outline/outline.h"

#include <algorithm>

#include "storage/compound_file.h"

namespace mxd {
namespace {

// The decoded maps that are no references, with their places in the stream.
std::vector<Map_outline> place_maps(const Tmxd_mxd& document, Byte_search& stream) {
  constexpr std::uint64_t count_word = 4;
  std::vector<Map_outline> maps;
  const std::uint64_t size = stream.stream().size();
  const auto places = find_objects(stream, count_word, size, {&Tmxd_map::clsid.guid, 1});
  auto place = places.begin();
  for (const auto& map : document.maps) {
    place = std::find_if(place, places.end(), [&](const Object_place& p) { return p.is(*map); });
    if (place == places.end()) break;
    const std::uint64_t position = place++->position;
    if (map->repeat) continue;
    if (!maps.empty()) maps.back().end = position;
    Map_outline outline;
    outline.map = map;
    outline.position = position;
    outline.end = size;
    outline.decoded_end = place == places.end() ? size : place->position;
    maps.push_back(std::move(outline));
  }
  return maps;
}

}  // namespace

bool Layer_record::read_failed() const {
  return !layer && !is_reference && kind() <= Layer_kind::graphics;
}

std::int64_t Map_outline::missing_layers() const {
  std::int64_t missing = counted_layers.value_or(0);
  for (const Layer_record& record : records) {
    if (!record.parent && record.length != 0) --missing;
    missing += record.counted_members.value_or(0);
    if (record.parent && records[*record.parent].counted_members) --missing;
  }
  return std::max<std::int64_t>(missing, 0);
}

Outline read_outline(const Tmxd_mxd& document, const Outline_streams& streams) {
  Outline outline;
  outline.document = read_document_facts(streams.version, streams.metadata);
  Byte_search stream(streams.maps);
  Layer_list_reader lists(stream);
  outline.maps = place_maps(document, stream);
  for (Map_outline& map : outline.maps) read_map_outline(stream, lists, map);
  outline.steps = stream.steps() + lists.steps();
  return outline;
}

Outline read_outline(const Tmxd_mxd& document, Tmxd_stream& file) {
  Tmxd_stream_m maps;
  Tmxd_stream_m version;
  Tmxd_stream_m metadata;
  // A missing stream is empty.
  static_cast<void>(read_named_stream(file, from_ascii("Maps"), maps));
  static_cast<void>(read_named_stream(file, from_ascii("Version"), version));
  static_cast<void>(read_named_stream(file, from_ascii("Metadata"), metadata));
  return read_outline(document, {maps.bytes(), version.bytes(), metadata.bytes()});
}

}  // namespace mxd
