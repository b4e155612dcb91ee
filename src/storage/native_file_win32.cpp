#include "storage/native_file.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace mxd {
namespace {

HANDLE handle_of(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

OVERLAPPED place_of(std::uint64_t position) {
  OVERLAPPED place = {};
  place.Offset = static_cast<DWORD>(position);
  place.OffsetHigh = static_cast<DWORD>(position >> 32);
  return place;
}

}  // namespace

Open_result Native_file::open(const Wide_string& path, File_access access, File_creation creation) {
  close();
  const DWORD rights =
      access == File_access::read_write ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD disposition =
      creation == File_creation::create_always ? CREATE_ALWAYS : OPEN_EXISTING;
  const HANDLE handle = CreateFileW(path.c_str(), rights, FILE_SHARE_READ, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return GetLastError() == ERROR_SHARING_VIOLATION ? Open_result::sharing_violation
                                                     : Open_result::failed;
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  position_ = 0;
  return Open_result::opened;
}

bool Native_file::close() {
  if (handle_ == closed) return false;
  const HANDLE handle = handle_of(handle_);
  handle_ = closed;
  return CloseHandle(handle) != 0;
}

std::optional<std::int64_t> Native_file::size() const {
  LARGE_INTEGER size;
  if (GetFileSizeEx(handle_of(handle_), &size) == 0) return std::nullopt;
  return size.QuadPart;
}

std::optional<std::uint32_t> Native_file::read(void* buffer, std::uint32_t size) {
  DWORD done = 0;
  OVERLAPPED place = place_of(position_);
  // Behind the end is an error here, where elsewhere nothing is read.
  if (ReadFile(handle_of(handle_), buffer, size, &done, &place) == 0 &&
      GetLastError() != ERROR_HANDLE_EOF) {
    return std::nullopt;
  }
  position_ += done;
  return static_cast<std::uint32_t>(done);
}

std::optional<std::uint32_t> Native_file::write(const void* buffer, std::uint32_t size) {
  DWORD done = 0;
  OVERLAPPED place = place_of(position_);
  if (WriteFile(handle_of(handle_), buffer, size, &done, &place) == 0) return std::nullopt;
  position_ += done;
  return static_cast<std::uint32_t>(done);
}

bool Native_file::set_end() {
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(position_);
  return SetFilePointerEx(handle_of(handle_), end, nullptr, FILE_BEGIN) != 0 &&
         SetEndOfFile(handle_of(handle_)) != 0;
}

void sleep_one_millisecond() {
  Sleep(1);
}

}  // namespace mxd
