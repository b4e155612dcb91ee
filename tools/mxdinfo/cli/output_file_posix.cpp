#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <memory>

#include "mxdinfo/cli/output_file.h"

namespace mxdinfo {
namespace {

constexpr std::array<int, 4> ending_signals = {SIGHUP, SIGINT, SIGTERM, SIGXFSZ};

// For the signal handler, which may use nothing but atomics and unlink().
std::atomic<const char*> unfinished_file = nullptr;
static_assert(std::atomic<const char*>::is_always_lock_free);

extern "C" void end_by_signal(int signal_number) {
  remove_unfinished_output();
  std::signal(signal_number, SIG_DFL);
  static_cast<void>(std::raise(signal_number));
}

// Signals that the caller ignores stay ignored, as under nohup.
void handle_signals() {
  for (const int signal_number : ending_signals) {
    struct sigaction action = {};
    if (sigaction(signal_number, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) continue;
    action.sa_handler = end_by_signal;
    sigaction(signal_number, &action, nullptr);
  }
}

// A pipe without a reader is an error, not something to wait for.
std::FILE* open_special(const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (file < 0) return nullptr;
  const int flags = fcntl(file, F_GETFL);
  fcntl(file, F_SETFL, flags & ~O_NONBLOCK);
  std::FILE* stream = fdopen(file, "w");
  if (!stream) close(file);
  return stream;
}

mode_t mode_of_new_files() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

// The file itself where the path is a link to it.
std::string without_links(const std::string& path) {
  const std::unique_ptr<char, void (*)(void*)> resolved(realpath(path.c_str(), nullptr), std::free);
  return resolved ? resolved.get() : path;
}

}  // namespace

Output_file::Output_file(const std::string& path, Line_ends /*line_ends*/) {
  if (path.empty()) {
    file_ = stdout;
    return;
  }
  struct stat status = {};
  const bool exists = stat(path.c_str(), &status) == 0;
  if (exists && !S_ISREG(status.st_mode)) {
    file_ = open_special(path);
    return;
  }
  if (exists && access(path.c_str(), W_OK) != 0) return;
  destination_ = exists ? without_links(path) : path;
  const std::size_t folder_end = destination_.rfind('/') + 1;
  std::string name = destination_.substr(0, folder_end) + ".mxdinfo-XXXXXX";
  const int file = mkstemp(name.data());
  if (file < 0) return;
  unfinished_ = name;
  unfinished_file = unfinished_.c_str();
  handle_signals();
  fchmod(file, exists ? status.st_mode & 07777 : mode_of_new_files());
  file_ = fdopen(file, "w");
  if (!file_) close(file);
}

bool Output_file::replace_destination() const {
  const bool replaced = std::rename(unfinished_.c_str(), destination_.c_str()) == 0;
  if (replaced) unfinished_file = nullptr;
  return replaced;
}

void remove_unfinished_output() noexcept {
  if (const char* path = unfinished_file.exchange(nullptr)) unlink(path);
}

void Output_file::discard() {
  if (unfinished_.empty()) return;
  unfinished_file = nullptr;
  unlink(unfinished_.c_str());
  unfinished_.clear();
}

}  // namespace mxdinfo
