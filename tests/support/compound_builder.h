// Compound files as a test means them: Compound_file().stream("Maps", bytes).fragmented(3).build()
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "storage/stream.h"

namespace mxd::test {

// Bytes in which a lost or misplaced sector shows.
Byte_run noise(std::size_t size, unsigned seed = 1);

// Fields of the header that a test may falsify, by offset.
enum class Header_field : std::size_t {
  sector_shift = 0x1E,
  mini_sector_shift = 0x20,
  fat_sectors = 0x2C,
  first_directory_sector = 0x30,
  cutoff = 0x38,
  first_mini_fat_sector = 0x3C,
  mini_fat_sectors = 0x40,
  first_difat_sector = 0x44,
  difat_sectors = 0x48,
  first_fat_sector = 0x4C,
  second_fat_sector = 0x50,
};

constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
constexpr std::uint32_t free_sector = 0xFFFFFFFF;
constexpr std::uint32_t sector_outside = 0x00100000;

class Compound_file {
 public:
  // Chains that are no stream's, for the damages below.
  static constexpr std::string_view directory = "/directory";
  static constexpr std::string_view mini_stream = "/mini stream";
  static constexpr std::string_view mini_fat = "/mini FAT";

  // Directory entries, in file order after the root. Streams below the cutoff go to the mini
  // stream. The tree of storages is flat: every entry is a child of the root.
  Compound_file& stream(std::string_view name, Byte_run bytes) {
    return add(entries_, {std::string(name), Kind::stream, std::move(bytes)});
  }
  Compound_file& storage(std::string_view name) {
    return add(entries_, {std::string(name), Kind::storage});
  }
  // The entry of a deleted stream: a name without sectors.
  Compound_file& unused_entry(std::string_view name) {
    return add(entries_, {std::string(name), Kind::unused});
  }

  Compound_file& cutoff(std::uint32_t size) { return set(cutoff_, size); }
  // Neighbours of a chain lie that many sectors apart, mini sectors as well.
  Compound_file& fragmented(std::size_t stride) { return set(stride_, stride); }
  Compound_file& unused_sectors(std::size_t count) { return set(unused_sectors_, count); }
  // The FAT and the directory lie before the streams.
  Compound_file& tables_first() { return set(tables_first_, true); }
  Compound_file& signature(std::string_view eight_bytes) { return set(signature_, eight_bytes); }

  // Damages. A link leads from the sector of that place in the chain.
  Compound_file& link(std::string_view chain, std::size_t from, std::uint32_t to) {
    return add(link_damages_, {std::string(chain), from, to, false});
  }
  Compound_file& circle(std::string_view chain, std::size_t from, std::uint32_t back_to) {
    return add(link_damages_, {std::string(chain), from, back_to, true});
  }
  Compound_file& first_sector(std::string_view stream, std::uint32_t sector) {
    return set(entry(stream).false_first_sector, sector);
  }
  Compound_file& claimed_size(std::string_view stream, std::uint32_t size) {
    return set(entry(stream).false_size, size);
  }
  Compound_file& header(Header_field field, std::uint32_t value) {
    return add(header_damages_, std::pair(field, value));
  }

  Byte_run build() const;

 private:
  enum class Kind : std::uint8_t { unused = 0, storage = 1, stream = 2, root = 5 };
  struct Entry {
    std::string name;
    Kind kind = Kind::unused;
    Byte_run bytes = {};
    std::optional<std::uint32_t> false_first_sector = {};
    std::optional<std::uint32_t> false_size = {};
  };
  struct Link_damage {
    std::string chain;
    std::size_t from = 0;
    std::uint32_t to = 0;
    bool to_is_place = false;
  };
  struct Sectors;

  template <class Field, class Value>
  Compound_file& set(Field& field, const Value& value) {
    field = value;
    return *this;
  }
  template <class Item>
  Compound_file& add(std::vector<Item>& list, Item item) {
    list.push_back(std::move(item));
    return *this;
  }
  Entry& entry(std::string_view name);
  void add_fat(Sectors& file) const;
  Byte_run directory_bytes(const Sectors& minis, const Sectors& file) const;
  Byte_run header_bytes(const Sectors& file) const;

  std::vector<Entry> entries_;
  std::vector<Link_damage> link_damages_;
  std::vector<std::pair<Header_field, std::uint32_t>> header_damages_;
  std::string signature_ = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  std::uint32_t cutoff_ = 4096;
  std::size_t stride_ = 1;
  std::size_t unused_sectors_ = 0;
  bool tables_first_ = false;
};

}  // namespace mxd::test
