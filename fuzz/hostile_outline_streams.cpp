// Streams whose outlines cost much.
#include "hostile_streams.h"
#include "support/outline_records.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

Bytes in_listed_map(const Bytes& list) {
  return Bytes().i32(1).add(listed_map(60002, "map", Bytes(before_list()).add(list)));
}

// Counts more than there are.
Bytes endless_list(int n) {
  return in_listed_map(
      Bytes()
          .i32(0x7FFFFFFF)
          .add(repeated(n, map_entries({foreign_layer(1, unheard_of_id, "layer")}))));
}

template <Bytes (*make)(int, const char*, const Bytes&)>
Bytes nested(int n) {
  Bytes innermost = foreign_layer(1, map_service_id, "layer");
  for (int i = 0; i < n; ++i) innermost = make(i + 2, "holds another", member_list({innermost}));
  return in_listed_map(map_list({innermost}));
}

// Groups in no list, each of which lists a layer that goes on to the end of the stream. They count
// one more, so that none of their lists is whole.
Bytes overlapping(int n, const Bytes& layer) {
  const Bytes group = listed_group(1, "group", Bytes().i32(2).i32(0).i32(0).add(layer));
  const std::size_t length_place = group.size() - 40 - layer.size() - 8;
  Bytes groups;
  for (int i = 0; i < n; ++i) {
    const std::size_t left = (static_cast<std::size_t>(n - i) * group.size()) - length_place - 8;
    const Bytes start = listed_group(1 + i, "group", Bytes().i32(2)).prefix(length_place);
    groups.add(start).i32(static_cast<std::int64_t>(left)).i32(0).add(layer).zeros(40);
  }
  return Bytes().i32(1).add(listed_map(60002, "map", groups));
}

Bytes overlapping_basemaps(int n) {
  return overlapping(n, basemap(60003, "base", Bytes()));
}

// Their names claim as many bytes as a name may have.
Bytes overlapping_names(int n) {
  return overlapping(n, Bytes().object(unheard_of_id, 60003, 3, Bytes().i32(9998)));
}

// Every entry could begin a list, too.
Bytes lists_everywhere(int n) {
  const Bytes entry = Bytes().i32(1000000).i32(24).i32(0).guid(unheard_of_id.guid).i32(0);
  return in_listed_map(map_list({basemap(1, "base", repeated(n, entry))}));
}

Bytes many_label_classes(int n) {
  const Bytes symbol = text_symbol(70, rgb_color(71, 50), repeated(3, font("Marker", 0, 24)));
  const Bytes classes = repeated(n, label_class(72, text("[Name]"), symbol));
  return in_listed_map(
      map_list({named_feature_layer(10, "a", labels(73, -1, classes, 0x7FFFFFFF))}));
}

Bytes many_labelled_layers(int n) {
  Bytes layers = Bytes().i32(n);
  const Bytes classes = label_class(72, text("[Name]"), text_symbol(70, rgb_color(71, 50), {}));
  for (int i = 0; i < n; ++i) {
    layers.add(map_entries({named_feature_layer(10 + 4 * i, "a", labels(60004, -1, classes))}));
  }
  return in_listed_map(layers);
}

Bytes many_envelopes(int n) {
  return in_listed_map(
      Bytes(map_list({})).add(repeated(n, envelope(80, {1, 2, 3, 4}).add(its_system()).zeros(3))));
}

Bytes list_decoys(int n, const Class_id& id) {
  return in_listed_map(repeated(n, Bytes().guid(id.guid)));
}

Bytes many_maps(int n) {
  Bytes maps = Bytes().i32(n);
  for (int i = 0; i < n; ++i) maps.add(listed_map(i, "map", Bytes(text("")).null_object().i32(3)));
  return maps;
}

}  // namespace

const std::vector<Hostile_stream>& outline_streams() {
  static const std::vector<Hostile_stream> streams = {
      {"endless list", 500, endless_list},
      {"groups in groups", 200, nested<listed_group>},
      {"basemaps in basemaps", 200, nested<basemap>},
      {"overlapping basemaps", 200, overlapping_basemaps},
      {"overlapping names", 400, overlapping_names},
      {"lists everywhere", 1000, lists_everywhere},
      {"endless label classes", 100, many_label_classes},
      {"labelled layers", 50, many_labelled_layers},
      {"envelopes", 500, many_envelopes},
      {"layer ids", 1000, [](int n) { return list_decoys(n, Tmxd_feature_layer::clsid); }},
      {"list ids", 1000, [](int n) { return list_decoys(n, basemap_id); }},
      {"maps", 300, many_maps},
  };
  return streams;
}

}  // namespace mxd::fuzz
