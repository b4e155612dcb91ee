// What a run writes: text for one file or standard output, with reports of failures.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "mxdinfo/cli/output_file.h"

namespace mxdinfo {

// "mxdinfo: plan.mxd: cannot be opened", without a line end.
std::string error_message(std::string_view name, std::string_view what);

class Output {
 public:
  // Standard output if the path is empty. Reports a file that cannot be opened.
  Output(const std::string& path, Line_ends line_ends);

  // Null if the file cannot be opened.
  std::FILE* file() const { return file_.file(); }
  // False, now and in all later calls, if the text cannot be written.
  bool write(std::string_view text);
  // Whether everything was written; reports a failure.
  bool commit();

 private:
  void report_failure() const;

  std::string name_;
  Output_file file_;
  bool failed_ = false;
};

}  // namespace mxdinfo
