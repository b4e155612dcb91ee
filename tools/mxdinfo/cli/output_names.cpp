#include "mxdinfo/cli/output_names.h"

#include <unordered_set>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

std::vector<std::string> output_names(const std::vector<std::string>& inputs,
                                      const std::string& folder, const std::string& ending) {
  std::vector<std::string> names;
  std::unordered_set<std::string> taken;
  for (const std::string& input : inputs) {
    std::string name = folder;
    for (const std::string& part : path_parts(input == "-" ? "stdin" : input)) {
      if (part != "." && part != ".." && !part.ends_with(':')) name = join_path(name, part);
    }
    std::string unique = name + ending;
    for (int i = 2; !taken.insert(fold_case(unique)).second; ++i) {
      unique = name + " (" + std::to_string(i) + ")" + ending;
    }
    names.push_back(std::move(unique));
  }
  return names;
}

bool make_folders_for(const std::string& path) {
  const std::string folder = parent_folder(path);
  if (folder.empty() || folder == path || is_folder(folder)) return true;
  return make_folders_for(folder) && make_folder(folder);
}

}  // namespace mxdinfo
