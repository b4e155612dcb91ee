#include "mxdinfo/cli/inputs.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/utf8.h"

namespace mxdinfo {
namespace {

namespace fs = std::filesystem;

fs::path path_of(const std::string& text) {
  return {std::u8string(text.begin(), text.end())};
}

std::string text_of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool is_document(const fs::path& path) {
  constexpr std::u8string_view ending = u8".mxd";
  const std::u8string found = path.extension().u8string();
  return std::equal(found.begin(), found.end(), ending.begin(), ending.end(),
                    [](char8_t c, char8_t wanted) {
                      return c == wanted || (c >= 'A' && c <= 'Z' && c + 0x20 == wanted);
                    });
}

bool is_folder(const std::string& path) {
  std::error_code error;
  return path != "-" && fs::is_directory(path_of(path), error);
}

// What stands in a folder, in the order of the names, so that every run tells the same.
std::vector<fs::directory_entry> sorted_entries(const fs::path& folder, std::error_code& error) {
  std::vector<fs::directory_entry> entries;
  fs::directory_iterator next(folder, error);
  for (; !error && next != fs::directory_iterator(); next.increment(error)) {
    entries.push_back(*next);
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

// Links to folders are not followed: they may lead back up.
void walk(const fs::path& folder, bool recursive, Inputs& inputs) {
  std::error_code error;
  for (const auto& entry : sorted_entries(folder, error)) {
    std::error_code ignored;
    if (entry.is_directory(ignored)) {
      if (recursive && !entry.is_symlink(ignored)) walk(entry.path(), true, inputs);
    } else if (is_document(entry.path())) {
      inputs.paths.push_back(text_of(entry.path()));
    }
  }
  if (error)
    inputs.failures.push_back(utf8_of_path(text_of(folder)) + ": the folder cannot be read");
}

void read_list(std::istream& list, char end, Inputs& inputs) {
  for (std::string name; std::getline(list, name, end);) {
    if (end == '\n' && name.ends_with('\r')) name.pop_back();
    if (!name.empty()) inputs.paths.push_back(name);
  }
}

void add_list(const Options& options, Inputs& inputs) {
  const char end = options.nul_separated ? '\0' : '\n';
  if (options.files_from == "-") {
    binary_standard_input();
    read_list(std::cin, end, inputs);
    return;
  }
  std::ifstream list(path_of(options.files_from), std::ios::binary);
  if (list) {
    read_list(list, end, inputs);
  } else {
    inputs.failures.push_back(utf8_of_path(options.files_from) + ": the list cannot be read");
  }
}

}  // namespace

Inputs find_inputs(const Options& options) {
  Inputs inputs;
  inputs.single = options.inputs.size() == 1 && options.files_from.empty();
  for (const std::string& input : options.inputs) {
    if (is_folder(input)) {
      inputs.single = false;
      walk(path_of(input), options.recursive, inputs);
    } else {
      inputs.paths.push_back(input);
    }
  }
  if (!options.files_from.empty()) add_list(options, inputs);
  return inputs;
}

bool is_input(const std::string& file, const Inputs& inputs) {
  return std::any_of(inputs.paths.begin(), inputs.paths.end(), [&](const std::string& path) {
    std::error_code not_there;
    return path != "-" && fs::equivalent(path_of(file), path_of(path), not_there);
  });
}

}  // namespace mxdinfo
