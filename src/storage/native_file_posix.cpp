#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <new>
#include <string>
#include <thread>

#include "storage/native_file.h"
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

// O_NONBLOCK: a pipe must not make the open wait for its other end. Nothing is truncated before
// the lock is held.
int open_descriptor(const Wide_string& path, bool write_access, bool create) try {
  const auto bytes = path_to_bytes(path);
  if (!bytes) return -1;
  const int flags = (write_access ? O_RDWR : O_RDONLY) | (create ? O_CREAT : 0) | O_NONBLOCK |
                    O_NOCTTY | O_CLOEXEC;
  return retry_interrupted([&] { return ::open(bytes->c_str(), flags, 0666); });
} catch (const std::bad_alloc&) {
  errno = ENOMEM;
  return -1;
}

bool is_regular(int descriptor) {
  struct stat status;
  return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// A file system without locks is no obstacle: only a lock of somebody else is.
bool is_locked_against(int descriptor, bool write_access) {
  const int operation = (write_access ? LOCK_EX : LOCK_SH) | LOCK_NB;
  return retry_interrupted([&] { return ::flock(descriptor, operation); }) != 0 &&
         errno == EWOULDBLOCK;
}

// Moves whole runs of bytes, since one call may do less than it was asked to.
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

}  // namespace

Open_result Native_file::open(const Wide_string& path, File_access access, File_creation creation) {
  close();
  const bool write_access = access == File_access::read_write;
  const bool create = creation == File_creation::create_always;
  const int descriptor = open_descriptor(path, write_access, create);
  // EWOULDBLOCK: somebody holds a lease on the file.
  if (descriptor < 0) {
    return errno == EWOULDBLOCK ? Open_result::sharing_violation : Open_result::failed;
  }
  handle_ = descriptor;
  position_ = 0;
  if (!is_regular(descriptor)) {
    close();
    return Open_result::failed;
  }
  if (is_locked_against(descriptor, write_access)) {
    close();
    return Open_result::sharing_violation;
  }
  if (create && !set_end()) {
    close();
    return Open_result::failed;
  }
  return Open_result::opened;
}

bool Native_file::close() {
  if (handle_ == closed) return false;
  const int descriptor = descriptor_of(handle_);
  handle_ = closed;
  // After EINTR the descriptor is gone as well.
  return ::close(descriptor) == 0 || errno == EINTR;
}

std::optional<std::int64_t> Native_file::size() const {
  struct stat status;
  if (::fstat(descriptor_of(handle_), &status) != 0) return std::nullopt;
  return status.st_size;
}

std::optional<std::uint32_t> Native_file::read(void* buffer, std::uint32_t size) {
  return transfer(static_cast<char*>(buffer), size, position_,
                  [this](char* to, std::uint32_t n, off_t at) {
                    return ::pread(descriptor_of(handle_), to, n, at);
                  });
}

std::optional<std::uint32_t> Native_file::write(const void* buffer, std::uint32_t size) {
  return transfer(static_cast<const char*>(buffer), size, position_,
                  [this](const char* from, std::uint32_t n, off_t at) {
                    return ::pwrite(descriptor_of(handle_), from, n, at);
                  });
}

bool Native_file::set_end() {
  const auto end = static_cast<off_t>(position_);
  return retry_interrupted([&] { return ::ftruncate(descriptor_of(handle_), end); }) == 0;
}

void sleep_one_millisecond() {
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

}  // namespace mxd
