#include "support/sample_document.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace mxd::test {
namespace {

TEST(Sample_document, is_what_is_committed) {
  std::ifstream file(std::string(VQK_SOURCE_DIR) + "/examples/sample.mxd", std::ios::binary);
  const Byte_run committed{std::istreambuf_iterator<char>(file), {}};
  EXPECT_TRUE(committed == sample_document()) << "build the target \"sample\" and look at it";
}

}  // namespace
}  // namespace mxd::test
