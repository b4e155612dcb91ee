#include "core/load_observer.h"

namespace mxd {

std::string error_line(const Read_error& error) {
  std::string line = "ERROR IN " + std::to_string(error.number) + " ";
  return line.append(error.type_name).append("  ").append(std::to_string(error.position));
}

void File_error_reporter::read_failed(const Read_error& error) {
  const std::string line = error_line(error) + "\n";
  // A failure here cannot be reported anywhere.
  static_cast<void>(std::fwrite(line.data(), 1, line.size(), file_));
  static_cast<void>(std::fflush(file_));
}

}  // namespace mxd
