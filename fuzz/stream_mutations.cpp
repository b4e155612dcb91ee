// Lets the fuzzers of streams change objects as well as bytes: whole objects are copied, repeated,
// moved and dropped, and their numbers, versions and counts edited.
#include <algorithm>
#include <random>

#include "class_ids.h"
#include "storage/class_id_search.h"
#include "storage/stream.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace mxd::fuzz {
namespace {

constexpr std::size_t guid_size = 16;
constexpr std::size_t reference_size = guid_size + 4;

class Object_mutator {
 public:
  Object_mutator(Byte_run& bytes, std::size_t most, unsigned seed)
      : bytes_(bytes), most_(most), random_(seed) {}

  void mutate() {
    places_.assign(1, below(bytes_.size() + 1));
    static const Class_id_scanner scanner(all_class_ids());
    const auto found = scanner.find_all(bytes_);
    if (!found.empty()) places_.clear();
    for (const auto& object : found) places_.push_back(static_cast<std::size_t>(object.position));
    const std::size_t kind = found.empty() ? 7 : below(9);
    if (kind < 5) return change_object(kind);
    if (kind == 5) return insert(random_place(), Byte_run(guid_size));
    if (kind == 6) return insert(random_place(), part(random_place(), reference_size));
    if (kind == 7) return insert(random_place(), random_class_id());
    edit_header(random_place());
  }

 private:
  std::size_t below(std::size_t end) { return random_() % end; }
  std::size_t random_place() { return places_[below(places_.size())]; }
  Byte_run random_class_id() {
    const Guid stored = swap_guid_byte_order(all_class_ids()[below(all_class_ids().size())]);
    return {stored.bytes.begin(), stored.bytes.end()};
  }
  auto at(std::size_t place) { return bytes_.begin() + static_cast<std::ptrdiff_t>(place); }
  Byte_run part(std::size_t begin, std::size_t size) {
    return {at(begin), at(begin + std::min(size, bytes_.size() - begin))};
  }
  void put(std::size_t place, std::size_t value, std::size_t size) {
    for (std::size_t i = 0; i < size && place + i < bytes_.size(); ++i) {
      bytes_[place + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
  }
  void insert(std::size_t place, const Byte_run& piece) {
    if (bytes_.size() + piece.size() > most_) return;
    bytes_.insert(at(std::min(place, bytes_.size())), piece.begin(), piece.end());
  }

  // An object reaches from one class id to one that follows it: with what it holds, or a part.
  void change_object(std::size_t kind) {
    const std::size_t first = below(places_.size());
    const std::size_t last = first + 1 + below(below(12) + 1);
    const std::size_t begin = places_[first];
    const std::size_t size = (last < places_.size() ? places_[last] : bytes_.size()) - begin;
    if (kind == 0) return edit_count(begin, size);
    const Byte_run copy = part(begin, size);
    if (kind < 3) bytes_.erase(at(begin), at(begin + size));
    if (kind == 1) return;
    const std::size_t target = random_place();
    for (std::size_t times = kind == 4 ? 1 + below(30) : 1; times != 0; --times)
      insert(target, copy);
  }

  // Counts and lengths are 32-bit numbers whose upper bytes are zero.
  void edit_count(std::size_t begin, std::size_t size) {
    constexpr std::uint32_t telling[] = {0,    1,     2,     7,          100,        9998,
                                         9999, 10000, 65535, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    std::vector<std::size_t> counts;
    for (std::size_t i = begin + guid_size; i + 4 <= begin + size; ++i) {
      if (bytes_[i + 2] == 0 && bytes_[i + 3] == 0) counts.push_back(i);
    }
    if (!counts.empty()) put(counts[below(counts.size())], telling[below(std::size(telling))], 4);
  }

  // Another class, the number of another object, a new one, or another version.
  void edit_header(std::size_t place) {
    const std::size_t kind = below(4);
    if (kind == 0) return static_cast<void>(std::ranges::copy(random_class_id(), at(place)));
    if (kind == 1) return put(place + guid_size, part(random_place(), guid_size + 1).back(), 2);
    if (kind == 2) return put(place + guid_size, below(0x10000), 2);
    put(place + reference_size, below(8), 2);
  }

  Byte_run& bytes_;
  std::size_t most_;
  std::mt19937 random_;
  std::vector<std::size_t> places_;  // where objects begin, ascending
};

}  // namespace
}  // namespace mxd::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  if (seed % 3 == 0) return LLVMFuzzerMutate(data, size, most);
  mxd::Byte_run bytes(data, data + size);
  for (unsigned left = 1 + seed / 3 % 3; left != 0; --left) {
    mxd::fuzz::Object_mutator(bytes, most, seed + left).mutate();
  }
  std::copy(bytes.begin(), bytes.end(), data);
  return bytes.size();
}
