#include "storage/class_id_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/naive_search.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

Guid guid_of(std::initializer_list<int> bytes) {
  Guid guid;
  std::transform(bytes.begin(), bytes.end(), guid.bytes.begin(),
                 [](int byte) { return static_cast<std::uint8_t>(byte); });
  return guid;
}

// Ids that overlap, that share words or that consist of one repeated byte.
const std::vector<Guid> tricky_ids = {
    guid_from_text("7914E5FF-C892-11D0-8BB6-080009EE4E41"),
    guid_from_text("7914E5FA-C892-11D0-8BB6-080009EE4E41"),
    swap_guid_byte_order(guid_of({1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2})),
    swap_guid_byte_order(guid_of({2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1})),
    guid_of({7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}),
    Guid{}};

TEST(Class_id_search, agrees_with_the_naive_search_on_planted_buffers) {
  const Class_id_scanner scanner(tricky_ids);
  std::mt19937 random(20);
  for (int round = 0; round < 300; ++round) {
    std::vector<std::uint8_t> bytes(random() % 200);
    // Few different values, so that parts of ids occur everywhere.
    for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random() % 3 == 0 ? 7 : random() % 3);
    for (int plant = 0; plant < 4 && bytes.size() > 16; ++plant) {
      const Guid stored = swap_guid_byte_order(tricky_ids[random() % tricky_ids.size()]);
      const auto position = static_cast<std::ptrdiff_t>(random() % (bytes.size() - 15));
      std::copy(stored.bytes.begin(), stored.bytes.end(), bytes.begin() + position);
    }
    std::vector<Guid> candidates;
    for (const Guid& id : tricky_ids) {
      if (random() % 2 == 0) candidates.push_back(id);
    }
    const Class_id_index index(scanner, bytes);
    const auto size = static_cast<std::int64_t>(bytes.size());
    const std::int64_t start = static_cast<std::int64_t>(random() % 220);
    for (const std::int64_t limit : {std::int64_t{-1}, size, size + 5, start + 15, start + 16,
                                     static_cast<std::int64_t>(random() % 220)}) {
      for (const std::int64_t from : {start, std::int64_t{0}}) {
        EXPECT_TRUE(agree(bytes, index, candidates, from, limit))
            << "size " << size << " start " << from << " limit " << limit;
      }
    }
  }
}

TEST(Class_id_search, a_negative_start_is_the_position_and_nothing_found_leaves_it) {
  const Guid map_id = guid_from_text("E6BDAA76-4D35-11D0-98BE-00805F7CED21");
  const Guid layer_id = guid_from_text("E663A651-8AAD-11D0-BEC7-00805F7C4268");
  Decoder decoder(Bytes().guid(map_id).zeros(3).guid(map_id).zeros(9));
  const std::span<const Guid> maps(&map_id, 1);
  const std::span<const Guid> layers(&layer_id, 1);
  EXPECT_EQ(2U, decoder.stream.find_all(maps, -1, -1).hits.size());
  ASSERT_TRUE(decoder.stream.seek(1));
  EXPECT_EQ(19, decoder.stream.scan(maps, -1, -1).hit.value().position);
  ASSERT_TRUE(decoder.stream.seek(5));
  EXPECT_FALSE(decoder.stream.scan(layers, -1, -1).hit);
  EXPECT_EQ(5U, decoder.stream.tell());
  EXPECT_TRUE(decoder.stream.find_all(layers, 2, -1).hits.empty());
  EXPECT_EQ(2U, decoder.stream.tell());
}

}  // namespace
}  // namespace mxd::test
