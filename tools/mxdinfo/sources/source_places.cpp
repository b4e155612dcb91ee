#include "mxdinfo/sources/source_places.h"

#include <algorithm>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

Path_parts folded_parts(std::string_view path) {
  return path_parts(fold_case(path));
}

std::size_t common_length(const Path_parts& a, const Path_parts& b) {
  const auto same = [](const std::string& x, const std::string& y) {
    return fold_case(x) == fold_case(y);
  };
  const auto length = static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()));
  const auto end = a.begin() + length;
  return static_cast<std::size_t>(std::mismatch(a.begin(), end, b.begin(), same).first - a.begin());
}

}  // namespace

Path_parts path_parts(std::string_view path) {
  Path_parts parts;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
    if (end != 0) parts.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return parts;
}

Source_places::Source_places(const std::vector<Path_mapping>& mappings) {
  for (const Path_mapping& mapping : mappings) {
    mappings_.push_back({folded_parts(mapping.stored), mapping.here});
  }
  std::stable_sort(mappings_.begin(), mappings_.end(),
                   [](const auto& a, const auto& b) { return a.stored.size() > b.stored.size(); });
}

std::optional<Source_places::Mapped_path> Source_places::mapped(const Path_parts& parts) const {
  for (const Folded_mapping& mapping : mappings_) {
    const std::size_t length = mapping.stored.size();
    if (length == 0 || common_length(mapping.stored, parts) != length) continue;
    const auto rest = parts.begin() + static_cast<std::ptrdiff_t>(length);
    return Mapped_path{mapping.here, Path_parts(rest, parts.end())};
  }
  return std::nullopt;
}

std::optional<std::string> Source_places::find_there(const std::string& stored) const {
  const Path_parts parts = path_parts(stored);
  if (const auto there = mapped(parts)) {
    if (auto found = names_.find(there->folder, there->rest)) return found;
  }
  const auto root = path_root(stored);
  if (!root || root->parts > parts.size()) return std::nullopt;
  return names_.find(root->folder, std::span(parts).subspan(root->parts));
}

std::optional<std::string> Source_places::find_from_saved_folder(
    const Path_parts& parts, const Document_place& document) const {
  const std::size_t name = document.saved_path.find_last_of("\\/");
  if (name == std::string::npos) return std::nullopt;
  const auto folder = find_there(document.saved_path.substr(0, name + 1));
  return folder ? names_.find(*folder, parts) : std::nullopt;
}

// First as the data was to the document when that was saved, then by ever shorter ends of the path.
std::optional<std::string> Source_places::find_near_document(const Path_parts& parts,
                                                             const Document_place& document) const {
  Path_parts saved = path_parts(document.saved_path);
  if (!saved.empty()) saved.pop_back();
  const std::size_t common = common_length(saved, parts);
  if (common != 0) {
    Path_parts steps(saved.size() - common, "..");
    steps.insert(steps.end(), parts.begin() + static_cast<std::ptrdiff_t>(common), parts.end());
    if (auto found = names_.find(document.folder, steps)) return found;
  }
  for (std::size_t start = 0; start < parts.size(); ++start) {
    if (parts[start].ends_with(':')) continue;
    if (auto found = names_.find(document.folder, std::span(parts).subspan(start))) return found;
  }
  return std::nullopt;
}

std::optional<Found_path> Source_places::find(const std::string& stored, bool is_relative,
                                              const Document_place& document) const {
  const Path_parts parts = path_parts(stored);
  if (!is_relative) {
    if (auto found = find_there(stored)) return Found_path{std::move(*found), false};
  }
  const auto relative = [](std::optional<std::string> path) {
    return path ? std::optional(Found_path{std::move(*path), true}) : std::nullopt;
  };
  if (document.folder.empty()) return std::nullopt;
  if (is_relative) {
    if (auto found = relative(names_.find(document.folder, parts))) return found;
    if (auto found = relative(find_from_saved_folder(parts, document))) return found;
  }
  return relative(find_near_document(parts, document));
}

std::string Source_places::expected(const std::string& stored) const {
  const auto there = mapped(path_parts(stored));
  if (!there) return stored;
  std::string path = there->folder;
  for (const std::string& part : there->rest) path = join_path(path, part);
  return path;
}

}  // namespace mxdinfo
