#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <atomic>

#include "mxdinfo/cli/output_file.h"
#include "mxdinfo/cli/wide_path_win32.h"

namespace mxdinfo {
namespace {

// For the handler of Ctrl+C, which runs on a thread of its own.
std::atomic<const std::wstring*> unfinished_file = nullptr;

BOOL WINAPI end_by_event(DWORD /*event*/) {
  remove_unfinished_output();
  return FALSE;
}

// Sharing the deletion lets the handler remove the file while it is open.
HANDLE open_handle(const std::wstring& path, DWORD disposition) {
  return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                     disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::FILE* stream_of(HANDLE handle, Line_ends line_ends) {
  if (handle == INVALID_HANDLE_VALUE) return nullptr;
  const bool binary = line_ends == Line_ends::kept;
  const int file =
      _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), binary ? _O_BINARY : _O_TEXT);
  if (file < 0) {
    CloseHandle(handle);
    return nullptr;
  }
  std::FILE* stream = _fdopen(file, binary ? "wb" : "wt");
  if (!stream) _close(file);
  return stream;
}

// Only one path is kept for the handler, for as long as the program runs.
std::wstring& kept_path() {
  static std::wstring path;
  return path;
}

}  // namespace

Output_file::Output_file(const std::string& path, Line_ends line_ends) {
  if (path.empty()) {
    if (line_ends == Line_ends::kept) _setmode(_fileno(stdout), _O_BINARY);
    file_ = stdout;
    return;
  }
  const std::wstring destination = wide_path(path);
  const HANDLE existing = open_handle(destination, OPEN_EXISTING);
  if (existing != INVALID_HANDLE_VALUE) {
    if (GetFileType(existing) != FILE_TYPE_DISK) {
      file_ = stream_of(existing, line_ends);
      return;
    }
    CloseHandle(existing);
  } else if (GetLastError() != ERROR_FILE_NOT_FOUND) {
    return;
  }
  destination_ = path;
  // A longer name than the destination's might not be allowed.
  const std::size_t folder_end = path.find_last_of("\\/:") + 1;
  unfinished_ = path.substr(0, folder_end) + ".mxdinfo-" + std::to_string(GetCurrentProcessId());
  kept_path() = wide_path(unfinished_);
  file_ = stream_of(open_handle(kept_path(), CREATE_NEW), line_ends);
  if (!file_) {
    unfinished_.clear();
    return;
  }
  unfinished_file = &kept_path();
  SetConsoleCtrlHandler(end_by_event, TRUE);
}

bool Output_file::replace_destination() const {
  const bool replaced = MoveFileExW(kept_path().c_str(), wide_path(destination_).c_str(),
                                    MOVEFILE_REPLACE_EXISTING) != 0;
  if (replaced) unfinished_file = nullptr;
  return replaced;
}

void remove_unfinished_output() noexcept {
  if (const std::wstring* path = unfinished_file.exchange(nullptr)) DeleteFileW(path->c_str());
}

void Output_file::discard() {
  if (unfinished_.empty()) return;
  unfinished_file = nullptr;
  DeleteFileW(kept_path().c_str());
  unfinished_.clear();
}

}  // namespace mxdinfo
