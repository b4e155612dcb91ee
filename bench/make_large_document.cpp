// make_large_document DOCUMENT MEGABYTES OUTPUT: repeats the maps of a document until its stream is
// that long. Objects are numbered anew, so that no repetition refers to the one before.
#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "document/known_class_ids.h"
#include "rendering/property_page.h"
#include "storage/compound_file.h"
#include "storage/native_path.h"
#include "support/compound_builder.h"

namespace {

using namespace mxd;

// The places of the numbers: behind each class id but those of property pages, which have none.
std::vector<std::size_t> number_places(std::span<const std::uint8_t> stream) {
  const auto pages = property_page_ids();
  std::vector<std::size_t> result;
  for (const Class_id_place& place : known_class_ids().places(stream)) {
    const Guid& id = known_class_ids().table().class_ids()[place.class_index];
    const auto number = static_cast<std::size_t>(place.position) + 16;
    if (std::ranges::find(pages, id) == pages.end() && number + 2 <= stream.size()) {
      result.push_back(number);
    }
  }
  return result;
}

unsigned number_at(std::span<const std::uint8_t> stream, std::size_t place) {
  return stream[place] + 256U * stream[place + 1];
}

Byte_run enlarged(std::span<const std::uint8_t> stream, std::size_t size) {
  constexpr std::ptrdiff_t count_size = 4;
  const auto places = number_places(stream);
  unsigned numbers = 0;
  for (const std::size_t place : places) numbers = std::max(numbers, number_at(stream, place) + 1);
  Byte_run result(stream.begin(), stream.begin() + count_size);
  for (unsigned first = 0; result.size() < size; first += numbers) {
    const std::size_t start = result.size() - count_size;
    result.insert(result.end(), stream.begin() + count_size, stream.end());
    for (const std::size_t place : places) {
      const unsigned number = number_at(stream, place) + first;
      result[start + place] = static_cast<std::uint8_t>(number);
      result[start + place + 1] = static_cast<std::uint8_t>(number >> 8);
    }
  }
  result.resize(size);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  Tmxd_stream_m maps;
  if (read_named_stream(path_from_bytes(argv[1]), widen("Maps"), maps) == 0) return 1;
  if (maps.get_size() < 1024) return 1;
  const auto size = static_cast<std::size_t>(std::atoi(argv[2])) << 20;
  const Byte_run file = test::Compound_file().stream("Maps", enlarged(maps.bytes(), size)).build();
  std::ofstream out(argv[3], std::ios::binary);
  out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  return out ? 0 : 1;
}
