#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/cli/wide_path_win32.h"

namespace mxdinfo {
namespace {

std::string to_utf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 0) return {};
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
  bytes.pop_back();
  return bytes;
}

HANDLE standard_input() {
  return GetStdHandle(STD_INPUT_HANDLE);
}

bool is_same(HANDLE a, HANDLE b) {
  BY_HANDLE_FILE_INFORMATION of_a = {}, of_b = {};
  return GetFileInformationByHandle(a, &of_a) && GetFileInformationByHandle(b, &of_b) &&
         of_a.dwVolumeSerialNumber == of_b.dwVolumeSerialNumber &&
         of_a.nFileIndexHigh == of_b.nFileIndexHigh && of_a.nFileIndexLow == of_b.nFileIndexLow;
}

class Open_file {
 public:
  explicit Open_file(const std::string& path)
      : handle_(CreateFileW(wide_path(path).c_str(), 0,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, 0, nullptr)) {}
  Open_file(const Open_file&) = delete;
  Open_file& operator=(const Open_file&) = delete;
  ~Open_file() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
  }
  HANDLE handle() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

bool is_terminal(std::FILE* file) {
  return _isatty(_fileno(file)) != 0;
}

bool color_is_welcome() {
  const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) <= 1 && GetConsoleMode(console, &mode) &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

std::FILE* binary_standard_input() {
  _setmode(_fileno(stdin), _O_BINARY);
  return stdin;
}

std::FILE* open_for_reading(const std::string& path) {
  std::FILE* file = nullptr;
  return _wfopen_s(&file, wide_path(path).c_str(), L"rb") == 0 ? file : nullptr;
}

bool seek_file(std::FILE* file, std::uint64_t position) {
  return _fseeki64(file, static_cast<std::int64_t>(position), SEEK_SET) == 0;
}

std::optional<File_status> file_status(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  const std::wstring full = wide_path(path);
  if (!GetFileAttributesExW(full.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  const auto join = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
  // File times count 100 ns from the year 1601.
  constexpr std::int64_t unix_epoch = 11644473600000000;
  const auto since_1601 = static_cast<std::int64_t>(
      join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime) / 10);
  return File_status{join(data.nFileSizeHigh, data.nFileSizeLow), since_1601 - unix_epoch};
}

std::optional<std::vector<Folder_entry>> list_folder(const std::string& path) {
  std::vector<Folder_entry> entries;
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileW(wide_path(join_path(path, "*")).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  do {
    std::string name = to_utf8(found.cFileName);
    if (name == "." || name == "..") continue;
    entries.push_back({std::move(name), (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0});
  } while (FindNextFileW(search, &found));
  const bool complete = GetLastError() == ERROR_NO_MORE_FILES;
  FindClose(search);
  if (!complete) return std::nullopt;
  return entries;
}

bool is_folder(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(wide_path(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string join_path(const std::string& folder, const std::string& name) {
  const bool has_end = folder.ends_with('\\') || folder.ends_with('/') || folder.ends_with(':');
  return has_end ? folder + name : folder + "\\" + name;
}

std::string parent_folder(const std::string& path) {
  const std::size_t end = path.find_last_of("\\/");
  if (end == path.npos) return path;
  const bool of_drive = end == 2 && path[1] == ':';
  return path.substr(0, of_drive ? end + 1 : end);
}

std::string absolute_path(const std::string& path) {
  const std::wstring given = wide_path(path);
  std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
  if (full.empty()) return path;
  full.resize(
      GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return to_utf8(full.c_str());
}

bool exists(const std::string& path) {
  return GetFileAttributesW(wide_path(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool make_folder(const std::string& path) {
  return CreateDirectoryW(wide_path(path).c_str(), nullptr) != 0 || is_folder(path);
}

std::string_view open_failure(const std::string& path) {
  if (is_folder(path)) return "cannot be opened: it is a folder";
  const HANDLE file = CreateFileW(wide_path(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    CloseHandle(file);
    return "cannot be opened";
  }
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
      return "cannot be opened: there is no such file";
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
      return "cannot be opened: there is no such folder";
    case ERROR_ACCESS_DENIED:
      return "cannot be opened: permission denied";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return "cannot be opened: another program uses it";
    case ERROR_INVALID_NAME:
      return "cannot be opened: this is no name of a file";
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
      return "cannot be opened: the network share does not respond";
    default:
      return "cannot be opened";
  }
}

std::optional<Path_root> path_root(const std::string& path) {
  if (path.size() > 1 && path[1] == ':') return Path_root{path.substr(0, 2) + "\\", 1};
  if (!path.starts_with("\\\\")) return std::nullopt;
  const std::size_t server_end = path.find_first_of("\\/", 2);
  if (server_end == path.npos) return std::nullopt;
  const std::size_t share_end = path.find_first_of("\\/", server_end + 1);
  return Path_root{path.substr(0, share_end), 2};
}

bool is_same_file(const std::string& a, const std::string& b) {
  return is_same(Open_file(a).handle(), Open_file(b).handle());
}

bool is_standard_input(const std::string& path) {
  return is_same(standard_input(), Open_file(path).handle());
}

std::string from_system_encoding(std::string text) {
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  if (size <= 0) return text;
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), size);
  return to_utf8(wide.c_str());
}

}  // namespace mxdinfo
