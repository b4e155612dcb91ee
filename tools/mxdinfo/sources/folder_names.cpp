#include <map>
#include <mutex>
#include <unordered_map>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {
namespace {

// Names in lower case, with the names as they are.
using Names = std::map<std::string, std::string, std::less<>>;

std::shared_ptr<const Names> read_names(const std::string& folder) {
  const auto entries = list_folder(folder);
  if (!entries) return nullptr;
  auto names = std::make_shared<Names>();
  for (const Folder_entry& entry : *entries) names->emplace(fold_case(entry.name), entry.name);
  return names;
}

}  // namespace

struct Folder_names::Cache {
  std::mutex mutex;
  // Null for folders that cannot be read.
  std::unordered_map<std::string, std::shared_ptr<const Names>> folders;

  std::shared_ptr<const Names> names_in(const std::string& folder) {
    constexpr std::size_t max_folders = 4096;
    {
      const std::scoped_lock lock(mutex);
      if (const auto known = folders.find(folder); known != folders.end()) return known->second;
    }
    auto names = read_names(folder);
    const std::scoped_lock lock(mutex);
    if (folders.size() >= max_folders) folders.clear();
    folders.emplace(folder, names);
    return names;
  }

  std::optional<std::string> child(const std::string& folder, const std::string& name) {
    const std::string path = join_path(folder, name);
    const auto names = names_in(folder);
    // A folder may be open for passage, but not for reading.
    if (!names) return exists(path) ? std::optional(path) : std::nullopt;
    const auto found = names->find(fold_case(name));
    if (found == names->end()) return std::nullopt;
    // Of two names that differ only in case, the one as it is stored is meant.
    return found->second != name && exists(path) ? path : join_path(folder, found->second);
  }
};

Folder_names::Folder_names() : cache_(std::make_unique<Cache>()) {}
Folder_names::~Folder_names() = default;

std::optional<std::string> Folder_names::find(std::string folder,
                                              std::span<const std::string> parts) const {
  for (const std::string& part : parts) {
    if (part == ".") continue;
    if (part == "..") {
      folder = parent_folder(folder);
    } else if (auto next = cache_->child(folder, part)) {
      folder = std::move(*next);
    } else {
      return std::nullopt;
    }
  }
  return parts.empty() && !exists(folder) ? std::nullopt : std::optional(std::move(folder));
}

bool Folder_names::has_ending(const std::string& folder, std::string_view ending) const {
  const auto names = cache_->names_in(folder);
  if (!names) return false;
  for (const auto& [folded, name] : *names) {
    if (folded.ends_with(ending)) return true;
  }
  return false;
}

}  // namespace mxdinfo
