#define WIN32_LEAN_AND_MEAN
#include <wchar.h>
#include <windows.h>

#include <climits>
#include <new>

#include "storage/long_path_win32.h"
#include "storage/platform.h"

namespace mxd {
namespace {

constexpr UINT library_code_page = CP_ACP;

// The length as the API takes it; 0 (an empty result) if it does not fit.
int api_length(std::size_t length) {
  return length > std::size_t{INT_MAX} ? 0 : static_cast<int>(length);
}

HANDLE handle_of(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

OVERLAPPED overlapped_at(std::uint64_t position) {
  OVERLAPPED overlapped = {};
  overlapped.Offset = static_cast<DWORD>(position);
  overlapped.OffsetHigh = static_cast<DWORD>(position >> 32);
  return overlapped;
}

}  // namespace

Open_result Native_file::open(const Wide_string& path, File_access access,
                              File_creation creation) try {
  static_cast<void>(close());
  const DWORD rights =
      access == File_access::read_write ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD disposition =
      creation == File_creation::create_always ? CREATE_ALWAYS : OPEN_EXISTING;
  const HANDLE handle = CreateFileW(openable_path(path).c_str(), rights, FILE_SHARE_READ, nullptr,
                                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return GetLastError() == ERROR_SHARING_VIOLATION ? Open_result::sharing_violation
                                                     : Open_result::failed;
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  return Open_result::opened;
} catch (const std::bad_alloc&) {
  return Open_result::failed;
}

bool Native_file::close() {
  if (!is_open()) return false;
  const HANDLE handle = handle_of(handle_);
  handle_ = closed;
  return CloseHandle(handle) != 0;
}

std::optional<std::uint64_t> Native_file::size() const {
  LARGE_INTEGER size;
  if (GetFileSizeEx(handle_of(handle_), &size) == 0) return std::nullopt;
  return static_cast<std::uint64_t>(size.QuadPart);
}

std::optional<std::uint32_t> Native_file::read(void* buffer, std::uint32_t size,
                                               std::uint64_t& position) {
  DWORD done = 0;
  OVERLAPPED overlapped = overlapped_at(position);
  // Windows reports an error for a read past the end, posix returns 0 bytes.
  if (ReadFile(handle_of(handle_), buffer, size, &done, &overlapped) == 0 &&
      GetLastError() != ERROR_HANDLE_EOF) {
    return std::nullopt;
  }
  position += done;
  return static_cast<std::uint32_t>(done);
}

std::optional<std::uint32_t> Native_file::write(const void* buffer, std::uint32_t size,
                                                std::uint64_t& position) {
  DWORD done = 0;
  OVERLAPPED overlapped = overlapped_at(position);
  if (WriteFile(handle_of(handle_), buffer, size, &done, &overlapped) == 0) return std::nullopt;
  position += done;
  return static_cast<std::uint32_t>(done);
}

bool Native_file::set_size(std::uint64_t size) {
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(size);
  return SetFilePointerEx(handle_of(handle_), end, nullptr, FILE_BEGIN) != 0 &&
         SetEndOfFile(handle_of(handle_)) != 0;
}

std::FILE* open_text_output(const Wide_string& path) {
  std::FILE* file = nullptr;
  return _wfopen_s(&file, openable_path(path).c_str(), L"wt") == 0 ? file : nullptr;
}

void sleep_one_millisecond() {
  Sleep(1);
}

std::string to_narrow(Wide_view text) {
  text = text.substr(0, text.find(Wide_char{}));
  const int length = api_length(text.size());
  if (length == 0) return {};
  const int needed =
      WideCharToMultiByte(library_code_page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  if (needed <= 0) return {};
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  const int written = WideCharToMultiByte(library_code_page, 0, text.data(), length, narrow.data(),
                                          needed, nullptr, nullptr);
  return written == needed ? narrow : std::string();
}

Wide_string narrow_to_wide(std::string_view text) {
  const int length = api_length(text.size());
  if (length == 0) return {};
  const int needed = MultiByteToWideChar(library_code_page, 0, text.data(), length, nullptr, 0);
  if (needed <= 0) return {};
  Wide_string wide(static_cast<std::size_t>(needed), Wide_char{});
  const int written =
      MultiByteToWideChar(library_code_page, 0, text.data(), length, wide.data(), needed);
  return written == needed ? wide : Wide_string();
}

bool equal_ignoring_case(Wide_view left, Wide_view right) {
  return lstrcmpiW(Wide_string(left).c_str(), Wide_string(right).c_str()) == 0;
}

}  // namespace mxd
