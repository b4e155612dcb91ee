// What was found in one input, and what becomes of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "document/mxd.h"

namespace mxdinfo {

struct Lost_object {
  std::uint16_t number;
  std::string type;
  std::int64_t position;
};

struct Report {
  // Among all inputs.
  std::size_t index = 0;
  std::string name;
  std::uint64_t size = 0;
  // Why there is no content; empty when there is.
  std::string failure;
  std::vector<Lost_object> lost;
  mxd::Tmxd_mxd content;
};

// What is still known of a report when it is written and gone.
struct Summary {
  std::string name;
  std::string failure;
  std::size_t maps = 0;
  std::size_t layers = 0;
  std::size_t lost = 0;
};
Summary summary_of(const Report& report);

struct Totals {
  std::size_t documents = 0;
  std::size_t unreadable = 0;
  std::size_t maps = 0;
  std::size_t layers = 0;
  std::size_t lost = 0;

  void add(const Summary& summary);
};

}  // namespace mxdinfo
