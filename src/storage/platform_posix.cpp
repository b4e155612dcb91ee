#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <new>
#include <thread>

#include "storage/platform.h"
#include "storage/unicode.h"

namespace mxd {
namespace {

static_assert(sizeof(off_t) == sizeof(std::int64_t));

template <typename Call>
auto retry_interrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// O_NONBLOCK: opening a pipe must not wait for its other end.
int open_descriptor(const Wide_string& path, int flags) {
  const auto bytes = path_to_bytes(path);
  if (!bytes) {
    errno = ENOENT;
    return -1;
  }
  const int all_flags = flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  return retry_interrupted([&] { return ::open(bytes->c_str(), all_flags, 0666); });
}

bool is_regular(int descriptor) {
  struct stat status;
  return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// Only a conflicting lock counts; a file system without locks is treated as unlocked.
bool is_locked_against(int descriptor, bool write_access) {
  const int operation = (write_access ? LOCK_EX : LOCK_SH) | LOCK_NB;
  return retry_interrupted([&] { return ::flock(descriptor, operation); }) != 0 &&
         errno == EWOULDBLOCK;
}

// Repeats the call until all bytes are transferred, since one call may transfer fewer.
template <typename Byte, typename Call>
std::optional<std::uint32_t> transfer(Byte* bytes, std::uint32_t size, std::uint64_t& position,
                                      Call call) {
  std::uint32_t done = 0;
  while (done < size) {
    const ssize_t moved = retry_interrupted(
        [&] { return call(bytes + done, size - done, static_cast<off_t>(position)); });
    if (moved < 0) return std::nullopt;
    if (moved == 0) break;
    done += static_cast<std::uint32_t>(moved);
    position += static_cast<std::uint64_t>(moved);
  }
  return done;
}

int descriptor_of(std::intptr_t handle) {
  return static_cast<int>(handle);
}

// There is no ANSI code page, so the encoding that the XML declares is used: windows-1251.
// The undefined byte 0x98 maps to the control character U+0098.
constexpr std::array<char16_t, 64> units_80_to_bf = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x20AC, 0x2030, 0x0409, 0x2039, 0x040A, 0x040C, 0x040B, 0x040F,  //
    0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x0098, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F,  //
    0x00A0, 0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7,  //
    0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,  //
    0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7,  //
    0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457,
};

constexpr std::array<char16_t, 256> make_units() {
  std::array<char16_t, 256> units{};
  for (std::size_t byte = 0; byte < units.size(); ++byte) {
    if (byte < 0x80) units[byte] = static_cast<char16_t>(byte);
    if (byte >= 0x80 && byte < 0xC0) units[byte] = units_80_to_bf[byte - 0x80];
    if (byte >= 0xC0) units[byte] = static_cast<char16_t>(0x0410 + (byte - 0xC0));
  }
  return units;
}
constexpr auto units = make_units();
constexpr std::size_t bytes_end = *std::max_element(units.begin(), units.end()) + std::size_t{1};

constexpr std::array<char, bytes_end> make_bytes() {
  std::array<char, bytes_end> bytes{};
  bytes.fill('?');
  for (std::size_t byte = 0; byte < units.size(); ++byte) {
    bytes[units[byte]] = static_cast<char>(byte);
  }
  return bytes;
}
constexpr auto bytes = make_bytes();

constexpr Wide_char fold(Wide_char unit) {
  return unit >= 'A' && unit <= 'Z' ? static_cast<Wide_char>(unit + ('a' - 'A')) : unit;
}

}  // namespace

Open_result Native_file::open(const Wide_string& path, File_access access,
                              File_creation creation) try {
  static_cast<void>(close());
  const bool write_access = access == File_access::read_write;
  const bool create = creation == File_creation::create_always;
  // Without O_TRUNC: nothing is truncated before the lock is held.
  const int descriptor =
      open_descriptor(path, (write_access ? O_RDWR : O_RDONLY) | (create ? O_CREAT : 0));
  // EWOULDBLOCK: another process holds a lease on the file.
  if (descriptor < 0) {
    return errno == EWOULDBLOCK ? Open_result::sharing_violation : Open_result::failed;
  }
  handle_ = descriptor;
  const bool regular = is_regular(descriptor);
  const bool locked = regular && is_locked_against(descriptor, write_access);
  if (regular && !locked && (!create || set_size(0))) return Open_result::opened;
  static_cast<void>(close());
  return locked ? Open_result::sharing_violation : Open_result::failed;
} catch (const std::bad_alloc&) {
  return Open_result::failed;
}

bool Native_file::close() {
  if (!is_open()) return false;
  const int descriptor = descriptor_of(handle_);
  handle_ = closed;
  // EINTR: the descriptor is closed nevertheless.
  return ::close(descriptor) == 0 || errno == EINTR;
}

std::optional<std::uint64_t> Native_file::size() const {
  struct stat status;
  if (::fstat(descriptor_of(handle_), &status) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size);
}

bool Native_file::set_size(std::uint64_t size) {
  const auto end = static_cast<off_t>(size);
  return retry_interrupted([&] { return ::ftruncate(descriptor_of(handle_), end); }) == 0;
}

std::optional<std::uint32_t> Native_file::read(void* buffer, std::uint32_t size,
                                               std::uint64_t& position) {
  return transfer(static_cast<char*>(buffer), size, position,
                  [this](char* to, std::uint32_t n, off_t at) {
                    return ::pread(descriptor_of(handle_), to, n, at);
                  });
}

std::optional<std::uint32_t> Native_file::write(const void* buffer, std::uint32_t size,
                                                std::uint64_t& position) {
  return transfer(static_cast<const char*>(buffer), size, position,
                  [this](const char* from, std::uint32_t n, off_t at) {
                    return ::pwrite(descriptor_of(handle_), from, n, at);
                  });
}

std::FILE* open_text_output(const Wide_string& path) {
  const int descriptor = open_descriptor(path, O_WRONLY | O_CREAT | O_TRUNC);
  if (descriptor < 0) return nullptr;
  const int flags = ::fcntl(descriptor, F_GETFL);
  // Only the opening is non-blocking: writing waits for a slow reader.
  const bool blocking = flags >= 0 && ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) == 0;
  std::FILE* const file = blocking ? ::fdopen(descriptor, "w") : nullptr;
  if (!file) ::close(descriptor);
  return file;
}

void sleep_one_millisecond() {
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

std::string to_narrow(Wide_view text) {
  text = text.substr(0, text.find(Wide_char{}));
  std::string narrow(text.size(), '?');
  std::transform(text.begin(), text.end(), narrow.begin(),
                 [](Wide_char unit) { return unit < bytes.size() ? bytes[unit] : '?'; });
  return narrow;
}

Wide_string narrow_to_wide(std::string_view text) {
  Wide_string wide(text.size(), Wide_char{});
  std::transform(text.begin(), text.end(), wide.begin(),
                 [](char byte) { return units[static_cast<unsigned char>(byte)]; });
  return wide;
}

bool equal_ignoring_case(Wide_view left, Wide_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](Wide_char a, Wide_char b) { return fold(a) == fold(b); });
}

}  // namespace mxd
