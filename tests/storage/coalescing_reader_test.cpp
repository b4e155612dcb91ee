#include "storage/coalescing_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "storage/memory_stream.h"
#include "support/compound_builder.h"

namespace mxd::test {
namespace {

// Reports a larger size than it has, like a file that shrinks, and reads partially, like files.
class Shrunken_stream final : public Tmxd_stream {
 public:
  Shrunken_stream(const Byte_run& bytes, std::size_t claimed) : bytes_(bytes), claimed_(claimed) {}

  bool set_size(std::uint64_t /*new_size*/) override { return false; }
  std::uint64_t get_size() override { return claimed_; }
  bool seek(std::uint64_t position) override {
    position_ = position;
    return true;
  }
  std::uint64_t tell() override { return position_; }
  std::uint64_t bytes_read() const { return bytes_read_; }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    bytes_read_ += element_size * count;
    const std::uint64_t there = bytes_.size() - std::min<std::uint64_t>(position_, bytes_.size());
    const std::uint64_t moved = std::min(element_size * count, there);
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(there == 0 ? 0 : position_), moved,
                static_cast<std::uint8_t*>(buffer));
    position_ += moved;
    return moved != 0;
  }
  bool write(const void* /*buffer*/, std::uint64_t /*element_size*/,
             std::uint64_t /*count*/) override {
    return false;
  }

 private:
  const Byte_run& bytes_;
  std::size_t claimed_;
  std::uint64_t position_ = 0;
  std::uint64_t bytes_read_ = 0;
};

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
    Shrunken_stream stream(bytes, bytes.size() + (round % 2 == 0 ? 0 : 30000));
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
    Shrunken_stream stream(bytes, 1U << 20);
    Coalescing_reader reader(stream, 1U << 20);
    EXPECT_EQ(2U, reader.read(Offsets{0, last - 512}, 512, read));
    EXPECT_EQ(last == 16384 ? 16384U : 1024U, stream.bytes_read());
  }
}

}  // namespace
}  // namespace mxd::test
