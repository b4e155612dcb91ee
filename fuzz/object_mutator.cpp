#include "object_mutator.h"

#include <algorithm>
#include <array>

#include "class_ids.h"
#include "storage/class_id_search.h"

namespace mxd::fuzz {
namespace {

using Stream = std::vector<std::uint8_t>;

constexpr std::size_t guid_size = 16;
constexpr std::size_t reference_size = guid_size + 4;

// Where objects begin, ascending.
std::vector<std::size_t> object_places(const Stream& bytes) {
  static const Class_id_scanner scanner(all_class_ids());
  std::vector<std::size_t> places;
  for (const auto& occurrence : scanner.find_all(bytes)) {
    places.push_back(static_cast<std::size_t>(occurrence.position));
  }
  return places;
}

Stream part(const Stream& bytes, std::size_t begin, std::size_t end) {
  return {bytes.begin() + static_cast<std::ptrdiff_t>(begin),
          bytes.begin() + static_cast<std::ptrdiff_t>(end)};
}

void erase(Stream& bytes, std::size_t begin, std::size_t end) {
  bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(begin),
              bytes.begin() + static_cast<std::ptrdiff_t>(end));
}

void put(Stream& bytes, std::size_t place, std::uint32_t value, std::size_t size) {
  for (std::size_t i = 0; i < size && place + i < bytes.size(); ++i) {
    bytes[place + i] = static_cast<std::uint8_t>(value >> (8 * i));
  }
}

}  // namespace

// From one class id to one that follows it: with what it holds, or a part of that.
Object_mutator::Span Object_mutator::random_object(const std::vector<std::size_t>& places,
                                                   std::size_t size) {
  const std::size_t first = below(places.size());
  const std::size_t last = first + 1 + below(below(12) + 1);
  return {places[first], last < places.size() ? places[last] : size};
}

void Object_mutator::insert(Stream& bytes, std::size_t place, const Stream& piece,
                            std::size_t most) {
  if (piece.size() > most || bytes.size() > most - piece.size()) return;
  bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(std::min(place, bytes.size())),
               piece.begin(), piece.end());
}

// The number of another object, a new one, another version or another class.
void Object_mutator::edit_header(Stream& bytes, const std::vector<std::size_t>& places) {
  const std::size_t place = places[below(places.size())];
  const std::size_t other = places[below(places.size())];
  if (other + reference_size > bytes.size()) return;
  switch (below(4)) {
    case 0:
      return put(bytes, place + guid_size, bytes[other + guid_size], 2);
    case 1:
      return put(bytes, place + guid_size, static_cast<std::uint32_t>(below(0x10000)), 2);
    case 2:
      return put(bytes, place + reference_size, static_cast<std::uint32_t>(below(8)), 2);
    default:
      const Guid stored = swap_guid_byte_order(all_class_ids()[below(all_class_ids().size())]);
      std::copy(stored.bytes.begin(), stored.bytes.end(),
                bytes.begin() + static_cast<std::ptrdiff_t>(place));
  }
}

// Counts and lengths are 32-bit numbers with two empty upper bytes.
void Object_mutator::edit_count(Stream& bytes, Span object) {
  constexpr std::array<std::uint32_t, 12> telling = {
      0, 1, 2, 7, 100, 9998, 9999, 10000, 65535, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
  std::vector<std::size_t> counts;
  for (std::size_t i = object.begin + guid_size; i + 4 <= object.end; ++i) {
    if (bytes[i + 2] == 0 && bytes[i + 3] == 0) counts.push_back(i);
  }
  if (counts.empty()) return;
  put(bytes, counts[below(counts.size())], telling[below(telling.size())], 4);
}

Stream Object_mutator::reference(const Stream& bytes, std::size_t place) {
  return part(bytes, place, std::min(place + reference_size, bytes.size()));
}

void Object_mutator::mutate(Stream& bytes, std::size_t most) {
  const std::vector<std::size_t> places = object_places(bytes);
  if (places.empty()) {
    const Guid stored = swap_guid_byte_order(all_class_ids()[below(all_class_ids().size())]);
    return insert(bytes, below(bytes.size() + 1), {stored.bytes.begin(), stored.bytes.end()}, most);
  }
  const Span object = random_object(places, bytes.size());
  const Stream copy = part(bytes, object.begin, object.end);
  const std::size_t target = places[below(places.size())];
  switch (below(8)) {
    case 0:
      return insert(bytes, target, copy, most);
    case 1:
      for (std::size_t times = 1 + below(30); times != 0; --times) {
        insert(bytes, object.end, copy, most);
      }
      return;
    case 2:
      erase(bytes, object.begin, object.end);
      return insert(bytes, target < object.begin ? target : object.begin, copy, most);
    case 3:
      return erase(bytes, object.begin, object.end);
    case 4:
      return insert(bytes, target, Stream(guid_size), most);
    case 5:
      return insert(bytes, target, reference(bytes, object.begin), most);
    case 6:
      return edit_header(bytes, places);
    default:
      return edit_count(bytes, object);
  }
}

}  // namespace mxd::fuzz
