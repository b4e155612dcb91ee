// The outline of one map: its layers as the file lists them, and its extent.
#pragma once

#include <optional>
#include <vector>

#include "document/map.h"
#include "outline/extent.h"
#include "outline/feature_facts.h"
#include "outline/layer_kind.h"
#include "outline/layer_list.h"

namespace mxd {

struct Layer_record {
  // Of the layer's object in the stream "Maps", in bytes. The length is 0 if the layer is in no
  // list, and was only found by the search for its class.
  std::uint64_t position = 0;
  std::uint64_t length = 0;

  Guid class_id;
  std::uint16_t number = 0;
  // Names a layer that was stored before under the same number, and holds nothing itself.
  bool is_reference = false;
  // Without the closing NUL. Empty if it could not be read.
  Wide_string name;

  // The group or basemap layer that holds it, as an index into the map's records.
  std::optional<std::size_t> parent;
  // How many members the list of a group or basemap layer counts. Nothing for others, and where no
  // list was found.
  std::optional<std::int32_t> counted_members;

  // The decoded layer; null if its class is not decoded or its read failed.
  const Tmxd_layer* layer = nullptr;
  // Of decoded feature layers; empty for others.
  Feature_facts facts;

  Layer_kind kind() const { return layer_kind(class_id); }
  // A layer of a decoded class that could not be read.
  bool read_failed() const;
};

struct Map_outline {
  // Never null, and never a reference.
  const Tmxd_map* map = nullptr;
  // Of the object in the stream; it ends where the next map begins, or with the stream.
  std::uint64_t position = 0;
  std::uint64_t end = 0;
  // Where the search for its decoded layers ended: at the next place that has the class id of maps.
  std::uint64_t decoded_end = 0;
  // What the data frame shows, in units of the map's coordinate system.
  std::optional<Extent> extent;
  // How many layers the map's list counts. Nothing if no list was found.
  std::optional<std::int32_t> counted_layers;
  // In the order of the stream: a layer comes before its members.
  std::vector<Layer_record> records;

  // How many layers the lists of the map and its layers count, but that do not follow there. The
  // document may hold them elsewhere, or be damaged.
  std::int64_t missing_layers() const;
};

// An object's start in the stream.
struct Object_place {
  std::uint64_t position = 0;
  Object_start start;

  // Whether the object can have been read from here.
  bool is(const Tmxd_obj& object) const {
    return start.class_id == object.class_id().guid && start.number == object.number &&
           start.reserve == object.reserve;
  }
};

// Every place in [from, to) that has one of these class ids, in order.
std::vector<Object_place> find_objects(Byte_search& stream, std::uint64_t from, std::uint64_t to,
                                       std::span<const Guid> class_ids);

// Fills in the outline of a map whose place is known.
void read_map_outline(Byte_search& stream, Layer_list_reader& lists, Map_outline& map);

}  // namespace mxd
