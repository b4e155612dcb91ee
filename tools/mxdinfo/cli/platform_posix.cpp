#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "mxdinfo/cli/platform.h"

namespace mxdinfo {
namespace {

bool is_same(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

bool is_terminal(std::FILE* file) {
  return isatty(fileno(file)) == 1;
}

bool color_is_welcome() {
  const auto value = [](const char* name) {
    // Nothing here changes the environment.
    const char* text = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return std::string_view(text ? text : "");
  };
  return value("NO_COLOR").empty() && value("TERM") != "dumb" && !value("TERM").empty() &&
         is_terminal(stdout);
}

std::FILE* binary_standard_input() {
  return stdin;
}

std::FILE* open_for_reading(const std::string& path) {
  return std::fopen(path.c_str(), "rb");
}

bool seek_file(std::FILE* file, std::uint64_t position) {
  return fseeko(file, static_cast<off_t>(position), SEEK_SET) == 0;
}

std::optional<File_status> file_status(const std::string& path) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  constexpr std::int64_t per_second = 1000000;
  const std::int64_t microseconds = status.st_mtim.tv_nsec / 1000;
  return File_status{static_cast<std::uint64_t>(status.st_size),
                     status.st_mtim.tv_sec * per_second + microseconds};
}

std::optional<std::vector<Folder_entry>> list_folder(const std::string& path) {
  std::vector<Folder_entry> entries;
  std::error_code error;
  std::filesystem::directory_iterator next(path, error);
  for (; !error && next != std::filesystem::directory_iterator(); next.increment(error)) {
    std::error_code ignored;
    entries.push_back(
        {next->path().filename().string(), next->is_directory(ignored), next->is_symlink(ignored)});
  }
  if (error) return std::nullopt;
  return entries;
}

bool is_folder(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string join_path(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

std::string parent_folder(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

std::string absolute_path(const std::string& path) {
  std::error_code error;
  const auto absolute = std::filesystem::absolute(path, error);
  return error ? path : absolute.lexically_normal().string();
}

bool exists(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0;
}

bool make_folder(const std::string& path) {
  return mkdir(path.c_str(), 0777) == 0 || is_folder(path);
}

std::string_view open_failure(const std::string& path) {
  if (is_folder(path)) return "cannot be opened: it is a folder";
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file) {
    static_cast<void>(std::fclose(file));
    return "cannot be opened: it is no regular file, or another program uses it";
  }
  switch (errno) {
    case ENOENT:
      return "cannot be opened: there is no such file";
    case ENOTDIR:
      return "cannot be opened: a part of its path is no folder";
    case EACCES:
      return "cannot be opened: permission denied";
    case ELOOP:
      return "cannot be opened: too many links";
    case ENAMETOOLONG:
      return "cannot be opened: the name is too long";
    case EMFILE:
    case ENFILE:
      return "cannot be opened: too many open files";
    case EIO:
      return "cannot be opened: input or output error";
    case ESTALE:
    case ETIMEDOUT:
    case EHOSTDOWN:
      return "cannot be opened: the network share does not respond";
    default:
      return "cannot be opened";
  }
}

std::optional<Path_root> path_root(const std::string& path) {
  if (!path.starts_with('/') || path.starts_with("//")) return std::nullopt;
  return Path_root{"/", 0};
}

bool is_same_file(const std::string& a, const std::string& b) {
  struct stat of_a = {}, of_b = {};
  return stat(a.c_str(), &of_a) == 0 && stat(b.c_str(), &of_b) == 0 && is_same(of_a, of_b);
}

bool is_standard_input(const std::string& path) {
  struct stat input = {}, file = {};
  return fstat(STDIN_FILENO, &input) == 0 && stat(path.c_str(), &file) == 0 && is_same(input, file);
}

std::string from_system_encoding(std::string text) {
  return text;
}

}  // namespace mxdinfo
