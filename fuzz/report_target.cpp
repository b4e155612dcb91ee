// All that mxdinfo writes about a document whose stream "Maps" has these bytes.
#include <algorithm>
#include <cstdio>

#include "measured_report.h"
#include "mxdinfo/output/bounded_text.h"
#include "target.h"

namespace {

using namespace mxd::fuzz;

// Printed at the end: how far the largest outputs go beyond the size that every output may have.
class Largest_outputs {
 public:
  ~Largest_outputs() {
    std::fprintf(stderr,
                 "largest output: %zu bytes (%s); beyond %zu bytes: %.2f per byte read (%s)\n",
                 size_, size_form_.c_str(), base_, ratio_, ratio_form_.c_str());
  }
  void see(const std::string& form, std::size_t output, std::size_t input) {
    if (output > size_) {
      size_ = output;
      size_form_ = form;
    }
    const auto beyond = static_cast<double>(output - std::min(output, base_));
    const double ratio = beyond / static_cast<double>(std::max<std::size_t>(input, 1));
    if (ratio > ratio_) {
      ratio_ = ratio;
      ratio_form_ = form;
    }
  }

 private:
  const std::size_t base_ = mxdinfo::max_output_size({});
  std::size_t size_ = 0;
  double ratio_ = 0;
  std::string size_form_ = "none";
  std::string ratio_form_ = "none";
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Largest_outputs largest;
  mxdinfo::Report report;
  load_report(report, {data, size});
  for (const Report_form& form : report_forms()) {
    const mxdinfo::Written_document output = form.writer->document(report);
    largest.see(form.arguments, output.text.size(), size);
    const std::string fault = output_fault(form, report, output);
    require(fault.empty(), fault.c_str());
  }
  return 0;
}
