#include "support/outline_checks.h"

#include "support/object_builder.h"

namespace mxd::test {
namespace {

std::string record_fault(const Map_outline& map, std::size_t index) {
  const Layer_record& record = map.records[index];
  if (index != 0 && record.position <= map.records[index - 1].position) return "records in order";
  if (record.position < map.position || record.position + 16 > map.end) return "records in maps";
  if (record.length > map.end - record.position) return "records end in maps";
  if (record.layer &&
      (record.layer->number != record.number || record.layer->class_id().guid != record.class_id)) {
    return "layers are those of their records";
  }
  if (!record.parent) return {};
  if (*record.parent >= index) return "parents before members";
  const Layer_record& parent = map.records[*record.parent];
  const bool both_listed = parent.length != 0 && record.length != 0;
  if (both_listed && record.position + record.length > parent.position + parent.length) {
    return "members in parents";
  }
  return {};
}

std::uint64_t text_bytes(const Map_outline& map) {
  std::uint64_t units = 0;
  for (const Layer_record& record : map.records) {
    if (!record.layer) units += record.name.size();
    units += record.facts.definition_query.value_or(Wide_string()).size();
    units += record.facts.normalization_field.value_or(Wide_string()).size();
    if (!record.facts.labels) continue;
    for (const Label_class& item : record.facts.labels->classes) units += item.expression.size();
  }
  return 2 * units;
}

std::string marks(const Layer_record& record) {
  std::string marks;
  if (record.read_failed()) marks += '!';
  if (record.kind() > Layer_kind::graphics) marks += '?';
  if (record.length == 0) marks += '*';
  if (record.is_reference) marks += '&';
  return marks;
}

}  // namespace

Load_budget load_maps(Tmxd_mxd& document, Tmxd_stream_m& maps, Load_observer& observer) {
  Load load(observer, maps.get_size());
  static_cast<void>(document.load_maps(maps, {}, load));
  return load.budget();
}

Load_budget load_maps(Tmxd_mxd& document, std::span<const std::uint8_t> maps,
                      Load_observer& observer) {
  Tmxd_stream_m bytes;
  static_cast<void>(bytes.write(maps.data(), 1, maps.size()));
  return load_maps(document, bytes, observer);
}

std::string outline_fault(const Outline& outline, std::uint64_t stream_size) {
  std::size_t records = 0;
  std::uint64_t maps_end = 0;
  for (const Map_outline& map : outline.maps) {
    if (!map.map || map.map->repeat) return "maps are no references";
    if (map.position < maps_end || map.end > stream_size) return "maps in order";
    maps_end = map.end;
    records += map.records.size();
    for (std::size_t i = 0; i < map.records.size(); ++i) {
      if (std::string fault = record_fault(map, i); !fault.empty()) return fault;
    }
    if (map.missing_layers() < 0) return "nothing is missing";
    if (text_bytes(map) > 4 * stream_size) return "text is that of the stream";
    if (map.extent && !(map.extent->xmin <= map.extent->xmax)) return "bounds in order";
  }
  // A listed layer and its entry have 28 bytes; a decoded layer without a list has 22.
  if (records > stream_size / 12) return "records have bytes";
  if (outline.steps > 12 * stream_size + 1000) return "work is linear";
  return {};
}

std::string layers_text(const Map_outline& map) {
  std::vector<std::string> paths;
  std::string out;
  for (const Layer_record& record : map.records) {
    paths.push_back(record.parent ? paths[*record.parent] + '/' : "");
    paths.back() += to_narrow(record.name);
    out += (paths.size() == 1 ? "" : ", ") + paths.back() + marks(record);
  }
  return out;
}

}  // namespace mxd::test
