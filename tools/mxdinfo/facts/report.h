// What was read from one input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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
  std::uint64_t size = 0;
  // How many of its bytes were read; at most the size.
  std::uint64_t bytes_read = 0;
  // Why there is no content: a string literal, empty if there is content.
  std::string_view failure;
  std::vector<Decode_error> errors;
  mxd::Tmxd_mxd content;
  mxd::Outline outline;
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
};
Summary summary_of(const Report& report);

struct Totals {
  std::size_t documents = 0;
  std::size_t unreadable = 0;
  std::size_t maps = 0;
  // Listed in the file, and decoded.
  std::size_t layers = 0;
  std::size_t decoded_layers = 0;
  std::size_t losses = 0;

  void add(const Summary& summary);
};

}  // namespace mxdinfo
