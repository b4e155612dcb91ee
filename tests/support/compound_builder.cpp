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
constexpr auto fat_name = "/FAT";
constexpr auto difat_name = "/DIFAT";

using Words = std::vector<std::uint32_t>;

void store(Byte_run& bytes, std::size_t offset, std::size_t width, std::size_t value) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
  }
}

Byte_run bytes_of(const Words& words) {
  Byte_run bytes(words.size() * 4);
  for (std::size_t i = 0; i < words.size(); ++i) store(bytes, 4 * i, 4, words[i]);
  return bytes;
}

std::size_t divide_up(std::size_t value, std::size_t by) {
  return (value + by - 1) / by;
}

// Finds the chain or entry of that name.
auto& named(auto& list, std::string_view name) {
  for (auto& item : list) {
    if (item.name == name) return item;
  }
  throw std::invalid_argument("no such name: " + std::string(name));
}

}  // namespace

Byte_run noise(std::size_t size, unsigned seed) {
  std::minstd_rand random(seed);
  Byte_run bytes(size);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random() >> 8);
  return bytes;
}

// The chains that share the sectors of a file or the mini sectors of its mini stream.
struct Compound_file::Sectors {
  struct Chain {
    std::string name;
    Byte_run bytes;
    Words sectors = {};

    std::uint32_t first() const { return sectors.empty() ? end_of_chain : sectors.front(); }
  };

  std::size_t size;
  std::size_t unused = 0;
  std::vector<Chain> chains = {};

  std::size_t count() const {
    std::size_t sum = unused;
    for (const Chain& chain : chains) sum += divide_up(chain.bytes.size(), size);
    return sum;
  }

  // Gives the chains, in turn, the sectors 0, stride, 2 x stride, ..., 1, 1 + stride, ...
  void place(std::size_t stride) {
    const std::size_t end = count();
    std::size_t next = 0;
    for (Chain& chain : chains) {
      while (chain.sectors.size() < divide_up(chain.bytes.size(), size)) {
        chain.sectors.push_back(static_cast<std::uint32_t>(next));
        next = next + stride < end ? next + stride : next % stride + 1;
      }
    }
  }

  Words links(const std::vector<Link_damage>& damages) const {
    Words links(divide_up(count(), links_per_sector) * links_per_sector, free_sector);
    for (const auto& [name, bytes, sectors] : chains) {
      for (std::size_t i = 0; i < sectors.size(); ++i) {
        links.at(sectors[i]) = i + 1 == sectors.size() ? end_of_chain : sectors[i + 1];
      }
      for (const Link_damage& damage : damages) {
        if (damage.chain != name) continue;
        links.at(sectors.at(damage.from)) = damage.to_is_place ? sectors.at(damage.to) : damage.to;
      }
    }
    return links;
  }

  void write(std::span<std::uint8_t> image) const {
    for (const Chain& chain : chains) {
      for (std::size_t i = 0; i < chain.sectors.size(); ++i) {
        const auto part = std::span(chain.bytes).subspan(i * size);
        std::ranges::copy(part.first(std::min(size, part.size())),
                          image.subspan(chain.sectors[i] * size).begin());
      }
    }
  }
};

Compound_file::Entry& Compound_file::entry(std::string_view name) {
  return named(entries_, name);
}

Byte_run Compound_file::build() const {
  Sectors minis{mini_sector_size};
  Sectors file{sector_size, unused_sectors_};
  for (const Entry& entry : entries_) {
    if (entry.kind != Kind::stream) continue;
    (entry.bytes.size() < cutoff_ ? minis : file).chains.push_back({entry.name, entry.bytes});
  }
  minis.place(stride_);
  Byte_run mini_bytes(minis.count() * mini_sector_size);
  minis.write(mini_bytes);
  const std::size_t directory_size = divide_up(entries_.size() + 1, 4) * 4 * entry_size;
  file.chains.push_back({std::string(mini_stream), std::move(mini_bytes)});
  file.chains.push_back({std::string(mini_fat), bytes_of(minis.links(link_damages_))});
  file.chains.push_back({std::string(directory), Byte_run(directory_size)});
  add_fat(file);
  named(file.chains, directory).bytes = directory_bytes(minis, file);

  Byte_run image((1 + file.count()) * sector_size, 0xEE);
  std::ranges::copy(header_bytes(file), image.begin());
  file.write(std::span(image).subspan(sector_size));
  return image;
}

// Places all chains, which include those of the FAT and the DIFAT: their sectors are in the header
// and in the DIFAT instead of the FAT.
void Compound_file::add_fat(Sectors& file) const {
  std::size_t size = 1;
  std::size_t difat_size = 0;
  const std::size_t content = file.count();
  while (size * links_per_sector < content + size + difat_size) {
    ++size;
    difat_size = size > fat_sectors_in_header
                     ? divide_up(size - fat_sectors_in_header, links_per_sector - 1)
                     : 0;
  }
  file.chains.push_back({fat_name, Byte_run(size * sector_size)});
  file.chains.push_back({difat_name, Byte_run(difat_size * sector_size)});
  if (tables_first_) std::ranges::reverse(file.chains);
  file.place(stride_);

  auto& fat = named(file.chains, fat_name);
  auto& difat = named(file.chains, difat_name);
  Words links = file.links(link_damages_);
  for (const auto sector : fat.sectors) links.at(sector) = fat_mark;
  for (const auto sector : difat.sectors) links.at(sector) = difat_mark;
  fat.bytes = bytes_of(links);
  Words listed(difat_size * links_per_sector, free_sector);
  for (std::size_t i = fat_sectors_in_header; i < size; ++i) {
    const std::size_t beyond = i - fat_sectors_in_header;
    listed.at(beyond + beyond / (links_per_sector - 1)) = fat.sectors[i];
  }
  for (std::size_t i = 1; i <= difat_size; ++i) {
    listed.at(i * links_per_sector - 1) = i < difat_size ? difat.sectors[i] : end_of_chain;
  }
  difat.bytes = bytes_of(listed);
}

// The tree of storages is a list of siblings below the root.
Byte_run Compound_file::directory_bytes(const Sectors& minis, const Sectors& file) const {
  Byte_run bytes = named(file.chains, directory).bytes;
  const auto& root = named(file.chains, mini_stream);
  std::size_t at = 0;
  const auto put = [&](std::string_view name, Kind kind, std::size_t sibling, std::size_t child,
                       std::size_t first, std::size_t size) {
    for (std::size_t i = 0; i < name.size(); ++i) {
      store(bytes, at + 2 * i, 2, static_cast<unsigned char>(name[i]));
    }
    store(bytes, at + 64, 2, 2 * name.size() + 2);
    store(bytes, at + 66, 2, static_cast<std::size_t>(kind) | 1U << 8);
    store(bytes, at + 68, 4, free_sector);
    store(bytes, at + 72, 4, sibling);
    store(bytes, at + 76, 4, child);
    store(bytes, at + 116, 4, first);
    store(bytes, at + 120, 4, size);
    at += entry_size;
  };
  put("Root Entry", Kind::root, free_sector, entries_.empty() ? free_sector : 1, root.first(),
      root.bytes.size());
  for (const Entry& entry : entries_) {
    std::uint32_t first = end_of_chain;
    if (entry.kind == Kind::stream) {
      first = named((entry.bytes.size() < cutoff_ ? minis : file).chains, entry.name).first();
    }
    put(entry.name, entry.kind, &entry == &entries_.back() ? free_sector : at / entry_size + 1,
        free_sector, entry.false_first_sector.value_or(first),
        entry.false_size.value_or(static_cast<std::uint32_t>(entry.bytes.size())));
  }
  return bytes;
}

Byte_run Compound_file::header_bytes(const Sectors& file) const {
  Byte_run bytes(sector_size);
  std::ranges::copy(signature_, bytes.begin());
  const auto put = [&bytes](Header_field field, std::size_t value) {
    const bool is_shift = field <= Header_field::mini_sector_shift;
    store(bytes, static_cast<std::size_t>(field), is_shift ? 2 : 4, value);
  };
  store(bytes, 0x18, 4, 0x0003003E);
  store(bytes, 0x1C, 2, 0xFFFE);
  const auto& minis = named(file.chains, mini_fat);
  const auto& fat = named(file.chains, fat_name);
  const auto& difat = named(file.chains, difat_name);
  put(Header_field::sector_shift, 9);
  put(Header_field::mini_sector_shift, 6);
  put(Header_field::fat_sectors, fat.sectors.size());
  put(Header_field::first_directory_sector, named(file.chains, directory).first());
  put(Header_field::cutoff, cutoff_);
  put(Header_field::first_mini_fat_sector, minis.first());
  put(Header_field::mini_fat_sectors, minis.sectors.size());
  put(Header_field::first_difat_sector, difat.first());
  put(Header_field::difat_sectors, difat.sectors.size());
  for (std::size_t i = 0; i < fat_sectors_in_header; ++i) {
    store(bytes, 0x4C + 4 * i, 4, i < fat.sectors.size() ? fat.sectors[i] : free_sector);
  }
  for (const auto& [field, value] : header_damages_) put(field, value);
  return bytes;
}

}  // namespace mxd::test
