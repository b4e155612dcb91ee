#include "mxdinfo/cli/output.h"

#include <fmt/format.h>

#include "mxdinfo/cli/progress.h"
#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {

std::string error_message(std::string_view name, std::string_view what) {
  return fmt::format("mxdinfo: {}: {}", escape_controls(name), what);
}

Output::Output(const std::string& path, Line_ends line_ends)
    : name_(path.empty() ? "standard output" : utf8_of_path(path)), file_(path, line_ends) {
  if (!file_.file()) report_failure();
}

bool Output::write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), file()) != text.size()) failed_ = true;
  return !failed_;
}

bool Output::commit() {
  const bool complete = !failed_ && file_.commit();
  if (!complete) report_failure();
  return complete;
}

void Output::report_failure() const {
  print_stderr(error_message(name_, "cannot be written") + "\n");
}

}  // namespace mxdinfo
