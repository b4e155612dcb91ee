// Reports of mxdinfo about a document with any stream "Maps", in every format.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/output/report_writer.h"
#include "storage/stream.h"

namespace mxd::fuzz {

struct Report_form {
  std::string arguments;  // of the command
  mxdinfo::Options options;
  std::unique_ptr<mxdinfo::Report_writer> writer;
};

// All formats and views whose size mxdinfo bounds: all but XML and dump.
const std::vector<Report_form>& report_forms();

// As mxdinfo loads a file. The document's other streams have the same bytes.
void load_report(mxdinfo::Report& report, std::span<const std::uint8_t> maps);

// Why the output is not one that the form may have; empty if it is.
std::string output_fault(const Report_form& form, const mxdinfo::Report& report,
                         const mxdinfo::Written_document& output);

}  // namespace mxd::fuzz
