// All that mxdinfo writes about a document whose stream "Maps" has these bytes.
#include "measured_report.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mxd::fuzz;
  mxdinfo::Report report;
  load_report(report, {data, size});
  for (const Report_form& form : report_forms()) {
    const std::string fault = output_fault(form, report, form.writer->document(report));
    require(fault.empty(), fault.c_str());
  }
  return 0;
}
