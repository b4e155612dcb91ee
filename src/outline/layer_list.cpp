#include "outline/layer_list.h"

#include <algorithm>
#include <utility>

#include "core/read_helpers.h"
#include "document/coordinate_system.h"
#include "outline/layer_kind.h"

namespace mxd {
namespace {

// int32 count of bytes, then these.
bool skip_string(Byte_view& bytes) {
  std::int32_t size = 0;
  return read_number(bytes, size) && size >= 0 && bytes.skip(static_cast<std::uint64_t>(size));
}

// The length of what follows the text of a coordinate system, in the versions where it is known.
std::optional<std::uint64_t> coordinate_system_tail(const Guid& class_id, std::uint16_t version) {
  if (class_id == Tmxd_geographic_coordinate_system::clsid.guid && version == 7) return 115;
  if (class_id == Tmxd_projected_coordinate_system::clsid.guid && version == 6) return 99;
  if (class_id == Tmxd_unknown_coordinate_system::clsid.guid && version == 3) return 100;
  return std::nullopt;
}

// The last fields of a coordinate system: the tolerances of x and y, of z and of m.
bool ends_in_tolerances(const Byte_search& stream, std::uint64_t end) {
  constexpr double most = 1e6;
  Byte_view bytes = stream.view(end - 3 * sizeof(double), end);
  double tolerance = 0;
  while (read_number(bytes, tolerance)) {
    if (!(tolerance > 0 && tolerance < most)) return false;
  }
  return true;
}

struct List_place {
  std::uint64_t position = 0;
  // Whether what comes before the list shows that it is one.
  bool certain = false;
};

// Description, coordinate system or 16 zero bytes, list.
std::optional<List_place> map_list_place(const Byte_search& stream, std::uint64_t name_end,
                                         std::uint64_t end) {
  Byte_view bytes = stream.view(name_end, end);
  if (!skip_string(bytes)) return std::nullopt;
  Guid class_id;
  if (!read_guid(bytes, class_id)) return std::nullopt;
  if (class_id.is_null()) return List_place{bytes.tell()};
  std::uint16_t number = 0;
  std::uint16_t reserve = 0;
  std::uint16_t version = 0;
  if (!read_numbers(bytes, number, reserve, version)) return std::nullopt;
  const auto tail = coordinate_system_tail(class_id, version);
  if (!tail || !skip_string(bytes) || !bytes.skip(*tail)) return std::nullopt;
  return List_place{bytes.tell(), ends_in_tolerances(stream, bytes.tell())};
}

// Class ids are made by a clock or at random, and say so. Other bytes rarely do.
bool looks_like_class_id(const Guid& guid) {
  const int made_by = guid.bytes[6] >> 4;
  const int variant = guid.bytes[8] >> 6;
  return variant == 2 && (made_by == 1 || made_by == 4);
}

}  // namespace

std::optional<Layer_list> Layer_list_reader::read_list(std::uint64_t position, std::uint64_t end,
                                                       Form form) {
  ++steps_;
  Byte_view bytes = stream_.view(position, end);
  Layer_list list;
  if (!read_number(bytes, list.count) || list.count < 0) return std::nullopt;
  for (std::int32_t i = 0; i < list.count && entries_left_ != 0; ++i) {
    std::uint16_t kind = 2;
    std::uint64_t length = 0;
    if (form == Form::with_kind && !read_number(bytes, kind)) break;
    if (!read_number(bytes, length) || kind < 2 || kind > 3) break;
    if (length < Object_start::size || length > bytes.left()) break;
    const std::uint64_t start = bytes.tell();
    Guid class_id;
    if (!read_guid(bytes, class_id) || !looks_like_class_id(class_id)) break;
    ++steps_;
    --entries_left_;
    list.layers.push_back({start, length});
    bytes.seek(start + length);
  }
  return list;
}

// Where the coordinate system's length is unknown: the first place at which a list begins with a
// layer of a known kind.
std::optional<Layer_list> Layer_list_reader::search_map_list(std::uint64_t from,
                                                             std::uint64_t end) {
  constexpr std::uint64_t start_size = 4 + 2 + 8;
  const auto found = stream_.first(from + start_size, end, known_layer_ids());
  if (!found) return std::nullopt;
  auto list = read_list(*found - start_size, end, Form::with_kind);
  return list && !list->layers.empty() ? list : std::nullopt;
}

std::optional<Layer_list> Layer_list_reader::map_list(std::uint64_t name_end, std::uint64_t end) {
  const auto place = map_list_place(stream_, name_end, end);
  std::optional<Layer_list> list;
  if (place) list = read_list(place->position, end, Form::with_kind);
  if (list && !list->layers.empty()) return list;
  if (auto found = search_map_list(name_end, end)) return found;
  // Layers that are counted and do not follow are worth a word only if this surely is a list.
  if (list && list->count != 0 && !place->certain) return std::nullopt;
  return list;
}

std::optional<Layer_list> Layer_list_reader::group_list(std::uint64_t name_end, std::uint64_t end) {
  constexpr std::uint64_t visible_and_bytes = 2 + 20;
  return read_list(name_end + visible_and_bytes, end, Form::plain);
}

std::optional<Layer_list> Layer_list_reader::basemap_list(std::uint64_t name_end,
                                                          std::uint64_t end) {
  for (std::uint64_t position = name_end;
       position + 4 + smallest_entry <= end && positions_left_ != 0; ++position) {
    --positions_left_;
    auto list = read_list(position, end, Form::plain);
    if (!list || list->count == 0) continue;
    if (std::cmp_equal(list->layers.size(), list->count)) return list;
  }
  return std::nullopt;
}

}  // namespace mxd
