// Where a run writes to.
#pragma once

#include <cstdio>
#include <string>

namespace mxdinfo {

// Line ends as the system has them, or bytes unchanged.
enum class Line_ends { system, kept };

// Standard output, a device or pipe, or a regular file. A regular file is written beside its
// destination and replaces it in commit(): after a failure, a signal or a full disk the destination
// is still what it was, and the unfinished file is removed. At most one exists at a time.
class Output_file {
 public:
  // Standard output if the path is empty.
  Output_file(const std::string& path, Line_ends line_ends);
  Output_file(const Output_file&) = delete;
  Output_file& operator=(const Output_file&) = delete;
  // Discards what was not committed.
  ~Output_file();

  // Null if the file cannot be opened, and after commit().
  std::FILE* file() const { return file_; }
  // Closes the file and puts it into place. False if not everything could be written.
  bool commit();

 private:
  // The closed file takes the place of the destination.
  bool replace_destination() const;
  void discard();

  std::FILE* file_ = nullptr;
  // Empty if there is nothing to replace.
  std::string unfinished_;
  std::string destination_;
};

// For an end that runs no destructors: removes the unfinished file, if there is one. Safe in signal
// handlers.
void remove_unfinished_output() noexcept;

}  // namespace mxdinfo
