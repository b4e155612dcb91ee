// What mxdinfo writes about documents that are made to have long reports. Each grows to twice and
// four times its size, and no output may grow faster.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>

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

void expect_linear(const Hostile_stream& row) {
  SCOPED_TRACE(row.name);
  std::map<std::string, std::size_t> once;
  for (const unsigned times : {1U, 2U, 4U}) {
    const test::Bytes stream = row.make(static_cast<int>(times) * row.n);
    forget_peak();
    mxdinfo::Report report;
    load_report(report, stream.data());
    std::printf("| %s | %zu |", row.name, stream.size());
    for (const Report_form& form : report_forms()) {
      SCOPED_TRACE(form.arguments);
      const mxdinfo::Written_document output = form.writer->document(report);
      const std::size_t size = output.text.size();
      if (times == 1) {
        EXPECT_EQ("", output_fault(form, report, output));
        once[form.arguments] = size;
      }
      EXPECT_LE(size, mxdinfo::max_output_size(report));
      expect_no_faster("output", once[form.arguments], size, times);
      std::printf(" %zu |", size);
    }
    const std::size_t memory = peak_memory();
    EXPECT_LE(memory, base_memory + memory_per_byte * stream.size());
    std::printf(" %zu |\n", memory);
  }
}

TEST(Costs, of_reports_grow_with_the_stream) {
  for (const Hostile_stream& row : report_streams()) expect_linear(row);
}

}  // namespace
}  // namespace mxd::fuzz
