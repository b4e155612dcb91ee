// The lines of an inventory that the next one keeps.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "mxdinfo/cli/batch.h"
#include "mxdinfo/cli/inputs.h"
#include "mxdinfo/inventory/inventory_file.h"
#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

class Kept_lines {
 public:
  // Adds to the inputs the inventory's documents below folders that cannot be reached: nothing is
  // known of them, so their lines stay.
  Kept_lines(std::unique_ptr<Inventory_file> old, const std::vector<std::string>& named_inputs,
             Inputs& inputs);

  // The document's line with the states that its data has now, or without states if the places are
  // null. Below folders that cannot be reached the states stay. Nothing if the document is new, has
  // another size or time, its line would be too long with the states, or is of another version of
  // mxdinfo. Called by several threads.
  std::optional<Rendered_document> line_of(const std::string& path,
                                           const Source_places* places) const;

  // After the last line is taken.
  void close_inventory() { old_.reset(); }

  // How many documents of the inventory are no inputs.
  std::size_t gone() const { return gone_; }

 private:
  bool is_unreachable(const std::string& path) const;

  std::unique_ptr<Inventory_file> old_;
  std::vector<std::string> unreachable_folders_;
  std::size_t gone_ = 0;
};

}  // namespace mxdinfo
