// What mxdinfo writes about documents that are made to have long reports.
#include <gtest/gtest.h>

#include "counted_memory.h"
#include "growth.h"
#include "hostile_streams.h"
#include "measured_report.h"
#include "mxdinfo/output/bounded_text.h"

namespace mxd::fuzz {
namespace {

// With the document itself: what mxdinfo may take for one.
constexpr std::size_t base_memory = std::size_t{64} << 20;
constexpr std::size_t memory_per_byte = 40;

TEST(Costs, of_reports_grow_with_the_stream) {
  for (const Hostile_stream& row : report_streams()) {
    expect_linear(row.name, row.n, [&](int n) {
      const test::Bytes stream = row.make(n);
      Costs costs = {{"bytes", stream.size()}};
      forget_peak();
      mxdinfo::Report report;
      load_report(report, stream.data());
      for (const Report_form& form : report_forms()) {
        const mxdinfo::Written_document output = form.writer->document(report);
        EXPECT_LE(output.text.size(), mxdinfo::max_output_size(report)) << form.arguments;
        if (n == row.n) {
          EXPECT_EQ("", output_fault(form, report, output));
        }
        costs.emplace_back(form.arguments.c_str(), output.text.size());
      }
      const std::size_t memory = peak_memory();
      EXPECT_LE(memory, base_memory + memory_per_byte * stream.size());
      costs.emplace_back("memory", memory);
      return costs;
    });
  }
}

}  // namespace
}  // namespace mxd::fuzz
