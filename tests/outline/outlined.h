// A stream "Maps", decoded, with its outline.
#pragma once

#include <functional>

#include "support/golden.h"
#include "support/outline_checks.h"
#include "support/outline_records.h"

namespace mxd::test {

struct Outlined {
  explicit Outlined(const Bytes& stream) {
    load_maps(document, stream.data(), errors);
    outline = read_outline(document, {stream.data(), {}, {}});
    EXPECT_EQ(outline_fault(outline, stream.size()), "");
  }

  const Map_outline& map() const { return outline.maps.at(0); }
  // Of the map's first layer.
  const Feature_facts& facts() const { return map().records.at(0).facts; }

  Recorded_errors errors;
  Tmxd_mxd document;
  Outline outline;
};

inline Bytes one_map(const Bytes& after_name) {
  return Bytes().i32(1).add(listed_map(1, "map", after_name));
}

struct Row {
  const char* what;
  Bytes bytes;
};

// A golden section with a line for each row.
inline void expect_rows(const char* section, const std::vector<Row>& rows,
                        const std::function<std::string(const Bytes&)>& show) {
  std::string text;
  for (const Row& row : rows) text += std::string(row.what) + ": " + show(row.bytes) + "\n";
  expect_golden("outline", section, text);
}

// "-" for nothing.
inline std::string shown(const std::optional<Wide_string>& text) {
  return text ? to_narrow(*text) : "-";
}

}  // namespace mxd::test
