#include "outline/byte_view.h"

#include <vector>

namespace mxd {
namespace {

// Only what follows the first eight bytes of an id is compared at every position.
std::uint64_t word_at(const std::uint8_t* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

}  // namespace

std::optional<Wide_string> read_text(Byte_view& bytes) {
  Wide_string text;
  if (!read_wide_string(bytes, text)) return std::nullopt;
  if (text.empty()) return text;
  if (text.find(Wide_char{0}) != text.size() - 1) return std::nullopt;
  text.pop_back();
  return text;
}

std::optional<std::uint64_t> Byte_search::first(std::uint64_t from, std::uint64_t to,
                                                std::span<const Guid> class_ids) {
  constexpr std::size_t id_size = 16;
  std::vector<Guid> stored;
  for (const Guid& id : class_ids) stored.push_back(swap_guid_byte_order(id));
  to = std::min<std::uint64_t>(to, stream_.size());
  for (; from + id_size <= to; ++from) {
    ++steps_;
    const std::uint8_t* here = stream_.data() + from;
    const std::uint64_t tail = word_at(here + 8);
    for (const Guid& id : stored) {
      if (tail == word_at(id.bytes.data() + 8) &&
          std::memcmp(here, id.bytes.data(), id_size) == 0) {
        return from;
      }
    }
  }
  return std::nullopt;
}

}  // namespace mxd
