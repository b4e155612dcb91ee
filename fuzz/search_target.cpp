// The search from the index must agree with the search byte by byte. The first 12 bytes choose the
// ids, the candidates, the start and the limit.
#include <vector>

#include "document/classes.h"
#include "support/naive_search.h"
#include "target.h"

namespace {

using namespace mxd;

std::int64_t position(const std::uint8_t* data) {
  return static_cast<std::int16_t>(data[0] | data[1] << 8);
}

// Known ids, and ids made of the input's own bytes, which overlap and share words.
std::vector<Guid> ids(const std::uint8_t* choice, std::span<const std::uint8_t> bytes) {
  const auto known = known_class_scanner().class_ids();
  std::vector<Guid> result;
  for (std::size_t i = 0; i < 4; ++i) {
    result.push_back(known[choice[i] % known.size()]);
    const std::size_t place = choice[4 + i];
    if (place + 16 > bytes.size()) continue;
    Guid stored;
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(place), 16, stored.bytes.begin());
    result.push_back(swap_guid_byte_order(stored));
  }
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t choices = 12;
  if (size < choices) return 0;
  const std::vector<std::uint8_t> bytes(data + choices, data + size);
  const std::vector<Guid> all = ids(data, bytes);
  const std::span<const Guid> candidates(all.data(), all.size() - data[0] % all.size());
  const std::int64_t start = std::max<std::int64_t>(position(data + 8), 0);
  const std::int64_t limit = position(data + 10);

  const Class_id_scanner scanner(all);
  const Class_id_index index(scanner, bytes);
  fuzz::require(test::agree(bytes, index, candidates, start, limit), "both find the same");
  return 0;
}
