#include "support/sample_document.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "document/mxd.h"
#include "storage/native_path.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

const auto sample_path = std::filesystem::path(VQK_SOURCE_DIR) / "examples" / "sample.mxd";

TEST(Sample_document, is_what_is_committed) {
  std::ifstream file(sample_path, std::ios::binary);
  const Byte_run committed{std::istreambuf_iterator<char>(file), {}};
  EXPECT_TRUE(committed == sample_document()) << "build the target \"sample\" and look at it";
}

TEST(Sample_document, reads_whole) {
  Recorded_errors errors;
  Tmxd_mxd document;
  ASSERT_TRUE(document.load(path_from_bytes(sample_path.string()), errors));
  EXPECT_TRUE(errors.lines.empty());
  ASSERT_EQ(3U, document.maps.size());
  EXPECT_EQ(6U, document.maps[0].layers.size());
}

}  // namespace
}  // namespace mxd::test
