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
  std::string type;
  std::int64_t position;
};

struct Report {
  // The position among all inputs.
  std::size_t index = 0;
  std::string name;
  std::uint64_t size = 0;
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
  std::size_t layers = 0;
  std::size_t errors = 0;
};
Summary summary_of(const Report& report);

struct Totals {
  std::size_t documents = 0;
  std::size_t unreadable = 0;
  std::size_t maps = 0;
  std::size_t layers = 0;
  std::size_t errors = 0;

  void add(const Summary& summary);
};

}  // namespace mxdinfo
