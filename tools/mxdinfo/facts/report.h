// What was read from one input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mxdinfo/facts/source_state.h"
#include "outline/outline.h"

namespace mxdinfo {

struct Decode_error {
  std::uint16_t number;
  std::string_view type;  // a string literal
  std::int64_t position;
};

struct Report {
  // The position among all inputs.
  std::size_t index = 0;
  std::string name;
  // The name as bytes where it is not UTF-8; otherwise empty.
  std::string name_bytes;
  std::uint64_t size = 0;
  // Of the file, in microseconds since 1970 UTC. Nothing for standard input.
  std::optional<std::int64_t> modified;
  // How many of its bytes were read; at most the size.
  std::uint64_t bytes_read = 0;
  // Why there is no content: a string literal, empty if there is content.
  std::string_view failure;
  std::vector<Decode_error> errors;
  // The stream "Maps".
  mxd::Tmxd_stream_m maps;
  mxd::Tmxd_mxd content;
  mxd::Outline outline;
  // Of the layers that have data, if that is checked.
  Source_states source_states;

  // Null if it is not known.
  const Source_state* source_state(const mxd::Tmxd_layer* layer) const {
    const auto found = source_states.find(layer);
    return found == source_states.end() ? nullptr : &found->second;
  }
};

// What is kept of a report after it is written.
struct Summary {
  std::string name;
  std::string_view failure;
  std::size_t maps = 0;
  // Listed in the file, and decoded.
  std::size_t layers = 0;
  std::size_t decoded_layers = 0;
  std::size_t losses = 0;
  // Its line of the inventory was kept, and its maps and layers not counted.
  bool is_unchanged = false;
  // The layers and places that a search found.
  std::size_t matches = 0;
};
Summary summary_of(const Report& report);

struct Totals {
  std::size_t documents = 0;
  // Of an inventory: kept lines, those of them with losses, and lines that leave.
  std::size_t unchanged = 0;
  std::size_t unchanged_with_losses = 0;
  std::size_t gone = 0;
  std::size_t unreadable = 0;
  std::size_t maps = 0;
  // Listed in the file, and decoded.
  std::size_t layers = 0;
  std::size_t decoded_layers = 0;
  std::size_t losses = 0;
  std::size_t matches = 0;

  void add(const Summary& summary);
};

}  // namespace mxdinfo
