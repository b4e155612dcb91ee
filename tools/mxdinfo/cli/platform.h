// System-dependent parts of the command line. Paths are UTF-8; on POSIX systems they may be any
// bytes.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mxdinfo {

// Whether the file is a terminal.
bool is_terminal(std::FILE* file);

// Whether standard output is a terminal with colors, and NO_COLOR is not set.
bool color_is_welcome();

// Standard input, without any conversion of line ends.
std::FILE* binary_standard_input();
// Null if the file cannot be opened.
std::FILE* open_for_reading(const std::string& path);
// Also beyond 2 GiB.
bool seek_file(std::FILE* file, std::uint64_t position);

struct File_status {
  std::uint64_t size = 0;
  // In microseconds since 1970 UTC.
  std::int64_t modified = 0;
};
// Empty if there is no such file, or it is a folder or device.
std::optional<File_status> file_status(const std::string& path);

struct Folder_entry {
  std::string name;
  bool is_folder = false;
  bool is_link = false;
};
// Empty if the folder cannot be read.
std::optional<std::vector<Folder_entry>> list_folder(const std::string& path);
bool is_folder(const std::string& path);
std::string join_path(const std::string& folder, const std::string& name);
// The path without its last component.
std::string parent_folder(const std::string& path);
// In the current folder, if the path is relative.
std::string absolute_path(const std::string& path);
bool exists(const std::string& path);
// True also if another program made it meanwhile.
bool make_folder(const std::string& path);
// Why a file cannot be opened, as a string literal: "cannot be opened: there is no such file".
std::string_view open_failure(const std::string& path);

// Where an absolute path of this system begins: a drive, a shared folder, or "/".
struct Path_root {
  std::string folder;
  // How many components of the path are part of it.
  std::size_t parts = 0;
};
// Empty for relative paths and those of other systems.
std::optional<Path_root> path_root(const std::string& path);

// Whether both paths name one existing file.
bool is_same_file(const std::string& a, const std::string& b);
bool is_standard_input(const std::string& path);

// Text that is not UTF-8, as UTF-8: converted from the code page of Windows, elsewhere unchanged.
std::string from_system_encoding(std::string text);

}  // namespace mxdinfo
