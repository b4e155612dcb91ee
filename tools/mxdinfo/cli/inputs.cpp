#include "mxdinfo/cli/inputs.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

#include "mxdinfo/cli/list_text.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

// Documents and templates of documents.
bool is_document(std::string_view name) {
  constexpr std::size_t ending_length = 4;
  if (name.size() <= ending_length) return false;
  const std::string ending = fold_case(name.substr(name.size() - ending_length));
  return ending == ".mxd" || ending == ".mxt";
}

// Entries are sorted by name, so that every run gives the same output. Links to folders are not
// followed: they may lead back up.
void walk(const std::string& folder, bool recursive, Inputs& inputs) {
  auto entries = list_folder(folder);
  if (!entries) {
    inputs.failures.push_back(utf8_of_path(folder) + ": the folder cannot be read");
    inputs.unreadable_folders.push_back(folder);
    return;
  }
  std::sort(entries->begin(), entries->end(),
            [](const Folder_entry& a, const Folder_entry& b) { return a.name < b.name; });
  for (const Folder_entry& entry : *entries) {
    const std::string path = join_path(folder, entry.name);
    if (entry.is_folder) {
      if (recursive && !entry.is_link) walk(path, true, inputs);
    } else if (is_document(entry.name)) {
      inputs.paths.push_back(path);
    }
  }
}

std::optional<std::string> contents(std::FILE* file) {
  std::string text;
  std::array<char, 1 << 14> piece;
  while (const std::size_t got = std::fread(piece.data(), 1, piece.size(), file)) {
    text.append(piece.data(), got);
  }
  if (std::ferror(file) != 0) return std::nullopt;
  return text;
}

std::optional<std::string> contents(const std::string& path) {
  if (path == "-") return contents(binary_standard_input());
  std::FILE* file = open_for_reading(path);
  if (!file) return std::nullopt;
  auto text = contents(file);
  static_cast<void>(std::fclose(file));
  return text;
}

void add_list(const Options& options, Inputs& inputs) {
  const char end = options.nul_separated ? '\0' : '\n';
  auto text = contents(options.files_from);
  if (!text) {
    inputs.failures.push_back(utf8_of_path(options.files_from) + ": the list cannot be read");
    inputs.list_failed = true;
    return;
  }
  const std::string list = list_text(std::move(*text));
  for (std::size_t begin = 0; begin < list.size();) {
    const std::size_t length = std::min(list.find(end, begin), list.size()) - begin;
    std::string name = list.substr(begin, length);
    if (end == '\n' && name.ends_with('\r')) name.pop_back();
    if (!name.empty()) inputs.paths.push_back(std::move(name));
    begin += length + 1;
  }
}

}  // namespace

Inputs find_inputs(const Options& options) {
  Inputs inputs;
  inputs.single = options.inputs.size() == 1 && options.files_from.empty();
  for (const std::string& input : options.inputs) {
    if (input != "-" && is_folder(input)) {
      inputs.single = false;
      walk(input, options.recursive, inputs);
    } else {
      inputs.paths.push_back(input);
    }
  }
  if (!options.files_from.empty()) add_list(options, inputs);
  return inputs;
}

bool is_input(const std::string& file, const Options& options, const Inputs& inputs) {
  const auto is_this = [&](const std::string& path) {
    return path == "-" ? is_standard_input(file) : is_same_file(file, path);
  };
  if (!options.files_from.empty() && is_this(options.files_from)) return true;
  const auto& paths = inputs.paths;
  if (!options.update || is_document(file)) return std::any_of(paths.begin(), paths.end(), is_this);
  // The file has no document's name, and looking up every document of a large share takes long.
  const auto& named = options.inputs;
  return std::any_of(named.begin(), named.end(), is_this) ||
         std::any_of(paths.begin(), paths.end(),
                     [&](const std::string& path) { return !is_document(path) && is_this(path); });
}

}  // namespace mxdinfo
