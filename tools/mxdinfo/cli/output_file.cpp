#include "mxdinfo/cli/output_file.h"

namespace mxdinfo {

Output_file::~Output_file() {
  if (file_ && file_ != stdout) static_cast<void>(std::fclose(file_));
  file_ = nullptr;
  discard();
}

bool Output_file::commit() {
  if (!file_) return false;
  const bool written = std::ferror(file_) == 0;
  const bool closed = (file_ == stdout ? std::fflush(file_) : std::fclose(file_)) == 0;
  file_ = nullptr;
  const bool complete = written && closed && (unfinished_.empty() || replace_destination());
  if (complete) unfinished_.clear();
  discard();
  return complete;
}

}  // namespace mxdinfo
