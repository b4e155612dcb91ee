#include "support/compound_builder.h"

#include <algorithm>
#include <random>
#include <span>
#include <stdexcept>
#include <utility>

namespace mxd::test {
namespace {

constexpr std::size_t sector_size = 512;
constexpr std::size_t mini_sector_size = 64;
constexpr std::size_t links_per_sector = 128;
constexpr std::size_t fat_sectors_in_header = 109;
constexpr std::size_t entry_size = 128;
constexpr std::uint32_t fat_mark = 0xFFFFFFFD;
constexpr std::uint32_t difat_mark = 0xFFFFFFFC;

void store(Byte_run& bytes, std::size_t offset, std::size_t width, std::uint32_t value) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
  }
}

Byte_run bytes_of(const std::vector<std::uint32_t>& words) {
  Byte_run bytes(words.size() * 4);
  for (std::size_t i = 0; i < words.size(); ++i) store(bytes, 4 * i, 4, words[i]);
  return bytes;
}

std::size_t divide_up(std::size_t value, std::size_t by) {
  return (value + by - 1) / by;
}

std::uint32_t first_of(const std::vector<std::uint32_t>& sectors) {
  return sectors.empty() ? end_of_chain : sectors.front();
}

// Numbers of sectors whose neighbours lie a stride apart: 0, stride, 2 x stride, ..., 1, 1 +
// stride,
// ...
std::vector<std::uint32_t> numbers(std::size_t count, std::size_t stride) {
  std::vector<std::uint32_t> order;
  for (std::size_t start = 0; start < stride; ++start) {
    for (std::size_t i = start; i < count; i += stride) {
      order.push_back(static_cast<std::uint32_t>(i));
    }
  }
  return order;
}

}  // namespace

Byte_run noise(std::size_t size, unsigned seed) {
  std::minstd_rand random(seed);
  Byte_run bytes(size);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random() >> 8);
  return bytes;
}

struct Compound_file::Layout {
  Chains minis;
  Chains regular;          // streams, and what the named chains hold
  Chains fat = Chains(1);  // one chain each, whose sectors are listed instead of linked
  Chains difat = Chains(1);

  const Chain& chain(std::string_view name) const {
    const auto found = std::ranges::find(regular, name, &Chain::name);
    if (found != regular.end()) return *found;
    throw std::invalid_argument("no such chain: " + std::string(name));
  }

  static std::size_t count(const Chains& chains, std::size_t unit) {
    std::size_t sum = 0;
    for (const auto& chain : chains) sum += divide_up(chain.bytes.size(), unit);
    return sum;
  }
  // Gives each chain its sectors, in turn.
  static void place(Chains& chains, std::size_t unit, std::span<const std::uint32_t>& numbers) {
    for (auto& chain : chains) {
      const std::size_t needed = divide_up(chain.bytes.size(), unit);
      chain.sectors.assign(numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(needed));
      numbers = numbers.subspan(needed);
    }
  }
  static void write(const Chains& chains, std::size_t unit, std::span<std::uint8_t> image) {
    for (const auto& chain : chains) {
      for (std::size_t i = 0; i < chain.sectors.size(); ++i) {
        const auto part = std::span(chain.bytes).subspan(i * unit);
        std::ranges::copy(part.first(std::min(unit, part.size())),
                          image.subspan(chain.sectors[i] * unit).begin());
      }
    }
  }
};

Compound_file::Entry& Compound_file::entry(std::string_view name) {
  const auto found = std::ranges::find(entries_, name, &Entry::name);
  if (found == entries_.end()) throw std::invalid_argument("no such entry: " + std::string(name));
  return *found;
}

Byte_run Compound_file::build() const {
  Layout layout;
  for (const auto& entry : entries_) {
    if (entry.kind != Kind::stream) continue;
    (entry.bytes.size() < cutoff_ ? layout.minis : layout.regular)
        .push_back({entry.name, entry.bytes});
  }
  fill_mini_stream(layout);
  const std::size_t entry_count = divide_up(entries_.size() + 1, 4) * 4;
  layout.regular.push_back({std::string(directory), Byte_run(entry_count * entry_size)});
  place_sectors(layout);
  fill_fat(layout);
  fill_directory(layout);

  const std::size_t sectors = layout.fat[0].sectors.size() + layout.difat[0].sectors.size() +
                              Layout::count(layout.regular, sector_size) + unused_sectors_;
  Byte_run image((1 + sectors) * sector_size, 0xEE);
  std::ranges::copy(header_bytes(layout), image.begin());
  for (const auto* chains : {&layout.regular, &layout.fat, &layout.difat}) {
    Layout::write(*chains, sector_size, std::span(image).subspan(sector_size));
  }
  return image;
}

// The chains of the mini stream itself and of its table.
void Compound_file::fill_mini_stream(Layout& layout) const {
  const std::size_t minis = Layout::count(layout.minis, mini_sector_size);
  const auto order = numbers(minis, stride_);
  std::span<const std::uint32_t> free = order;
  Layout::place(layout.minis, mini_sector_size, free);
  Byte_run content(minis * mini_sector_size);
  Layout::write(layout.minis, mini_sector_size, content);
  std::vector<std::uint32_t> links(divide_up(minis, links_per_sector) * links_per_sector,
                                   free_sector);
  link_sectors(layout.minis, links);
  layout.regular.push_back({std::string(mini_stream), std::move(content)});
  layout.regular.push_back({std::string(mini_fat), bytes_of(links)});
}

// The FAT has to cover its own sectors and those of the DIFAT as well.
void Compound_file::place_sectors(Layout& layout) const {
  const std::size_t content = Layout::count(layout.regular, sector_size) + unused_sectors_;
  std::size_t fat = 0;
  std::size_t difat = 0;
  for (std::size_t needed = 1; needed > fat;
       needed = divide_up(content + fat + difat, links_per_sector)) {
    fat = needed;
    difat = fat > fat_sectors_in_header
                ? divide_up(fat - fat_sectors_in_header, links_per_sector - 1)
                : 0;
  }
  layout.fat[0].bytes.resize(fat * sector_size);
  layout.difat[0].bytes.resize(difat * sector_size);
  const auto order = numbers(content + fat + difat, stride_);
  std::span<const std::uint32_t> free = order;
  std::vector<Chains*> placing = {&layout.regular, &layout.fat, &layout.difat};
  if (tables_first_) {
    std::ranges::reverse(placing);
    std::ranges::reverse(layout.regular);
  }
  for (auto* chains : placing) {
    Layout::place(*chains, sector_size, free);
  }
  if (tables_first_) std::ranges::reverse(layout.regular);
}

void Compound_file::link_sectors(const Chains& chains, std::vector<std::uint32_t>& links) const {
  for (const auto& chain : chains) {
    for (std::size_t i = 0; i < chain.sectors.size(); ++i) {
      const bool last = i + 1 == chain.sectors.size();
      links.at(chain.sectors[i]) = last ? end_of_chain : chain.sectors[i + 1];
    }
    for (const auto& damage : link_damages_) {
      if (damage.chain != chain.name) continue;
      links.at(chain.sectors.at(damage.from)) =
          damage.to_is_place ? chain.sectors.at(damage.to) : damage.to;
    }
  }
}

void Compound_file::fill_fat(Layout& layout) const {
  auto& fat = layout.fat[0];
  auto& difat = layout.difat[0];
  std::vector<std::uint32_t> links(fat.sectors.size() * links_per_sector, free_sector);
  link_sectors(layout.regular, links);
  for (const auto sector : fat.sectors) links.at(sector) = fat_mark;
  for (const auto sector : difat.sectors) links.at(sector) = difat_mark;
  fat.bytes = bytes_of(links);

  std::vector<std::uint32_t> listed(difat.sectors.size() * links_per_sector, free_sector);
  for (std::size_t i = fat_sectors_in_header; i < fat.sectors.size(); ++i) {
    const std::size_t beyond = i - fat_sectors_in_header;
    listed.at(beyond + beyond / (links_per_sector - 1)) = fat.sectors[i];
  }
  for (std::size_t i = 0; i < difat.sectors.size(); ++i) {
    const bool last = i + 1 == difat.sectors.size();
    listed.at((i + 1) * links_per_sector - 1) = last ? end_of_chain : difat.sectors[i + 1];
  }
  difat.bytes = bytes_of(listed);
}

void Compound_file::fill_directory(Layout& layout) const {
  auto& bytes = layout.regular.back().bytes;
  const auto& minis = layout.chain(mini_stream);
  const auto put = [&bytes](std::size_t index, std::string_view name, Kind kind,
                            std::uint32_t sibling, std::uint32_t child, std::uint32_t first,
                            std::size_t size) {
    const std::size_t at = index * entry_size;
    for (std::size_t i = 0; i < name.size(); ++i) {
      store(bytes, at + 2 * i, 2, static_cast<unsigned char>(name[i]));
    }
    store(bytes, at + 64, 2, static_cast<std::uint32_t>(2 * name.size() + 2));
    store(bytes, at + 66, 2, static_cast<std::uint32_t>(kind) | 1U << 8);
    store(bytes, at + 68, 4, free_sector);
    store(bytes, at + 72, 4, sibling);
    store(bytes, at + 76, 4, child);
    store(bytes, at + 116, 4, first);
    store(bytes, at + 120, 4, static_cast<std::uint32_t>(size));
  };
  put(0, "Root Entry", Kind::root, free_sector, entries_.empty() ? free_sector : 1,
      first_of(minis.sectors), minis.bytes.size());
  auto mini = layout.minis.begin();
  auto regular = layout.regular.begin();
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const auto& entry = entries_[i];
    std::uint32_t first = end_of_chain;
    if (entry.kind == Kind::stream) {
      first = first_of((entry.bytes.size() < cutoff_ ? *mini++ : *regular++).sectors);
    }
    const bool last = i + 1 == entries_.size();
    put(i + 1, entry.name, entry.kind, last ? free_sector : static_cast<std::uint32_t>(i + 2),
        free_sector, entry.false_first_sector.value_or(first),
        entry.false_size.value_or(static_cast<std::uint32_t>(entry.bytes.size())));
  }
}

Byte_run Compound_file::header_bytes(const Layout& layout) const {
  Byte_run bytes(sector_size);
  std::ranges::copy(signature_, bytes.begin());
  const auto put = [&bytes](Header_field field, std::size_t value) {
    const auto offset = static_cast<std::size_t>(field);
    const bool is_shift = field <= Header_field::mini_sector_shift;
    store(bytes, offset, is_shift ? 2 : 4, static_cast<std::uint32_t>(value));
  };
  store(bytes, 0x18, 4, 0x0003003E);
  store(bytes, 0x1C, 2, 0xFFFE);
  const auto& minis = layout.chain(mini_fat).sectors;
  const auto& fat = layout.fat[0].sectors;
  const auto& difat = layout.difat[0].sectors;
  put(Header_field::sector_shift, 9);
  put(Header_field::mini_sector_shift, 6);
  put(Header_field::fat_sectors, fat.size());
  put(Header_field::first_directory_sector, first_of(layout.chain(directory).sectors));
  put(Header_field::cutoff, cutoff_);
  put(Header_field::first_mini_fat_sector, first_of(minis));
  put(Header_field::mini_fat_sectors, minis.size());
  put(Header_field::first_difat_sector, first_of(difat));
  put(Header_field::difat_sectors, difat.size());
  for (std::size_t i = 0; i < fat_sectors_in_header; ++i) {
    store(bytes, 0x4C + 4 * i, 4, i < fat.size() ? fat[i] : free_sector);
  }
  for (const auto& damage : header_damages_) put(damage.field, damage.value);
  return bytes;
}

}  // namespace mxd::test
