#include "mxdinfo/inventory/kept_lines.h"

#include <algorithm>
#include <unordered_set>

#include "mxdinfo/cli/load.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/inventory/kept_states.h"
#include "mxdinfo/output/bounded_text.h"

namespace mxdinfo {
namespace {

bool is_unchanged(const Inventory_entry& entry, const File_status& status) {
  return entry.is_current && status.size == entry.size &&
         time_text(status.modified) == entry.modified;
}

}  // namespace

Kept_lines::Kept_lines(std::unique_ptr<Inventory_file> old,
                       const std::vector<std::string>& named_inputs, Inputs& inputs)
    : old_(std::move(old)), unreachable_folders_(inputs.unreadable_folders) {
  for (const std::string& input : named_inputs) {
    if (input != "-" && !is_folder(input) && !file_status(input)) {
      unreachable_folders_.push_back(input);
    }
  }
  std::vector<std::string> unreachable;
  const std::unordered_set<std::string_view> paths(inputs.paths.begin(), inputs.paths.end());
  for (const Inventory_entry& entry : old_->entries()) {
    if (paths.contains(entry.path)) continue;
    if (is_unreachable(entry.path)) {
      unreachable.push_back(entry.path);
    } else {
      ++gone_;
    }
  }
  inputs.paths.insert(inputs.paths.end(), unreachable.begin(), unreachable.end());
}

std::optional<Rendered_document> Kept_lines::line_of(const std::string& path,
                                                     const Source_places* places) const {
  const Inventory_entry* entry = old_->find(path);
  if (!entry) return std::nullopt;
  const auto status = file_status(path);
  if (status ? !is_unchanged(*entry, *status) : !is_unreachable(path)) return std::nullopt;
  auto line = old_->line(*entry);
  if (!line) return std::nullopt;
  Rendered_document result;
  const bool looks_for_data = status && places;
  result.text = status || !places ? with_states(*line, path, places) : std::move(*line);
  if (looks_for_data && result.text.size() > max_output_size(entry->size)) return std::nullopt;
  result.summary.name = utf8_of_path(path);
  if (!entry->is_readable) result.summary.failure = not_a_document;
  result.summary.losses = entry->has_losses ? 1 : 0;
  result.summary.is_unchanged = true;
  return result;
}

bool Kept_lines::is_unreachable(const std::string& path) const {
  return std::any_of(
      unreachable_folders_.begin(), unreachable_folders_.end(),
      [&](const std::string& folder) { return path.starts_with(join_path(folder, "")); });
}

}  // namespace mxdinfo
