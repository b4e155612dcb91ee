#include "storage/coalescing_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/compound_builder.h"
#include "support/counting_stream.h"

namespace mxd::test {
namespace {

TEST(Coalescing_reader, reads_the_pieces_before_the_first_incomplete_one) {
  std::mt19937 random(7);
  const Byte_run bytes = noise(40000);
  for (int round = 0; round < 400; ++round) {
    const std::size_t piece = std::size_t{1} << random() % 13;
    const std::size_t spread = 1 + random() % (bytes.size() / piece);
    Offsets offsets;
    for (auto left = random() % 40; left != 0; --left) {
      const bool follows = !offsets.empty() && random() % 2 == 0;
      const auto size = static_cast<std::int64_t>(piece);
      offsets.push_back(follows ? offsets.back() + size
                                : static_cast<std::int64_t>(random() % spread) * size);
    }
    Byte_run wanted;
    for (const std::int64_t offset : offsets) {
      const auto start = bytes.begin() + offset;
      if (offset + static_cast<std::int64_t>(piece) > static_cast<std::int64_t>(bytes.size()))
        break;
      wanted.insert(wanted.end(), start, start + static_cast<std::ptrdiff_t>(piece));
    }
    Counting_stream stream(bytes, bytes.size() + (round % 2 == 0 ? 0 : 30000));
    Coalescing_reader reader(stream, 1U << 20);
    Byte_run read(offsets.size() * piece, 0xEE);
    ASSERT_EQ(wanted.size(), reader.read(offsets, piece, read) * piece);
    ASSERT_TRUE(std::equal(wanted.begin(), wanted.end(), read.begin()));
    // Few bytes between the pieces are read.
    EXPECT_LE(stream.bytes_read(), read.size() + reader.file_size() / 16);
  }
}

TEST(Coalescing_reader, reads_a_window_of_its_whole_size_at_once) {
  const Byte_run bytes = noise(20000);
  Byte_run read(1024);
  for (const int last : {16384, 16385}) {
    Counting_stream stream(bytes, 1U << 20);
    Coalescing_reader reader(stream, 1U << 20);
    EXPECT_EQ(2U, reader.read(Offsets{0, last - 512}, 512, read));
    EXPECT_EQ(last == 16384 ? 16384U : 1024U, stream.bytes_read());
  }
}

}  // namespace
}  // namespace mxd::test
