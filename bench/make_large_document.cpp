// make_large_document DOCUMENT MEGABYTES OUTPUT: repeats the maps of a document until its stream
// has that size. Objects get new numbers, so that no repetition refers to an earlier one. Random
// bytes fill the space after each repetition if there are too few numbers; all sizes get the same
// share of them.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>

#include "class_ids.h"
#include "document/classes.h"
#include "storage/compound_file.h"
#include "storage/unicode.h"
#include "support/compound_builder.h"

namespace {

using namespace mxd;

// Property pages and fonts have no number after their class id.
bool has_number(const Guid& id) {
  constexpr Class_id font("0be35203-8f91-11ce-9de3-00aa004bb851");
  const auto pages = class_ids_of<Property_page_classes>();
  return id != font.guid && std::ranges::find(pages, id) == pages.end();
}

std::vector<std::size_t> number_places(std::span<const std::uint8_t> stream) {
  const Class_id_scanner scanner(fuzz::all_class_ids());
  std::vector<std::size_t> result;
  for (const auto& occurrence : scanner.find_all(stream)) {
    const Guid& id = scanner.class_ids()[occurrence.class_index];
    const auto number = static_cast<std::size_t>(occurrence.position) + 16;
    if (has_number(id) && number + 2 <= stream.size()) result.push_back(number);
  }
  return result;
}

Byte_run enlarged(std::span<const std::uint8_t> stream, std::size_t size) {
  constexpr std::ptrdiff_t count_size = 4;
  constexpr std::size_t max_size = std::size_t{64} << 20;
  const auto places = number_places(stream);
  std::map<unsigned, unsigned> numbers;
  for (const std::size_t place : places) {
    const unsigned number = stream[place] + 256U * stream[place + 1];
    numbers.try_emplace(number, static_cast<unsigned>(numbers.size()));
  }
  const std::size_t max_repetitions = 65536 / std::max<std::size_t>(numbers.size(), 1);
  const Byte_run noise = test::noise(std::max(max_size / max_repetitions + 1, stream.size()));
  Byte_run result(stream.begin(), stream.begin() + count_size);
  for (std::size_t first = 0; result.size() < size; first += numbers.size()) {
    const std::size_t start = result.size() - count_size;
    result.insert(result.end(), stream.begin() + count_size, stream.end());
    result.insert(result.end(), noise.begin() + static_cast<std::ptrdiff_t>(stream.size()),
                  noise.end());
    for (const std::size_t place : places) {
      const unsigned old_number = stream[place] + 256U * stream[place + 1];
      const std::size_t number = numbers[old_number] + first;
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
  if (!read_named_stream(path_from_bytes(argv[1]), from_ascii("Maps"), maps)) return 1;
  if (maps.get_size() < 1024) return 1;
  const auto size = static_cast<std::size_t>(std::atoi(argv[2])) << 20;
  const Byte_run file = test::Compound_file().stream("Maps", enlarged(maps.bytes(), size)).build();
  std::ofstream out(argv[3], std::ios::binary);
  out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  return out ? 0 : 1;
}
