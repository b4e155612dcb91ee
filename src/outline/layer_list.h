// Lists of layers as they are stored: of a map, a group layer or a basemap layer.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "outline/byte_view.h"

namespace mxd {

// Where one layer's object is stored.
struct Stored_layer {
  std::uint64_t position = 0;
  std::uint64_t length = 0;
};

struct Layer_list {
  // How many layers the list counts. Fewer follow if the list is damaged or its layers are
  // elsewhere.
  std::int32_t count = 0;
  std::vector<Stored_layer> layers;
};

// Reads the lists of one stream. All calls together look at no more entries than the stream has
// room for, and search no more positions than it has; past that, nothing is found.
class Layer_list_reader {
 public:
  explicit Layer_list_reader(Byte_search& stream)
      : stream_(stream),
        entries_left_(stream.stream().size() / smallest_entry),
        positions_left_(stream.stream().size()) {}

  // The list of a map whose name ends at `name_end` and which ends at `end`. Nothing if no list is
  // found there.
  std::optional<Layer_list> map_list(std::uint64_t name_end, std::uint64_t end);

  // The list of a group layer whose name ends at `name_end` and which ends at `end`.
  std::optional<Layer_list> group_list(std::uint64_t name_end, std::uint64_t end);

  // The same of a basemap layer.
  std::optional<Layer_list> basemap_list(std::uint64_t name_end, std::uint64_t end);

  // Lists and entries looked at.
  std::uint64_t steps() const { return steps_; }

 private:
  // Only a map's list has a word before each length: 3 for basemap layers, 2 for others.
  enum class Form { plain, with_kind };

  std::optional<Layer_list> search_map_list(std::uint64_t from, std::uint64_t end);
  std::optional<Layer_list> read_list(std::uint64_t position, std::uint64_t end, Form form);

  static constexpr std::uint64_t smallest_entry = 28;

  Byte_search& stream_;
  std::uint64_t entries_left_;
  std::uint64_t positions_left_;
  std::uint64_t steps_ = 0;
};

}  // namespace mxd
