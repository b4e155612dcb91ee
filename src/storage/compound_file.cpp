#include "storage/compound_file.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <span>
#include <vector>

#include "storage/coalescing_reader.h"
#include "storage/file_stream.h"
#include "storage/platform.h"

namespace mxd {
namespace {

constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
constexpr std::uint32_t last_chained_sector = 0x7FFFFFFF;
constexpr std::size_t header_size = 512;
// Tables are read in sectors of this size, whatever sector size the header gives.
constexpr std::size_t table_sector_size = 512;
constexpr std::size_t entries_per_fat_sector = table_sector_size / 4;
constexpr std::size_t header_difat_entries = 109;
constexpr std::size_t entries_per_difat_sector = entries_per_fat_sector - 1;
constexpr std::size_t directory_entry_size = 128;
constexpr std::size_t mini_sectors_per_sector = 8;
// Sector offsets are signed 32-bit products; nothing beyond this can be addressed.
constexpr std::uint64_t reachable_size = header_size + (std::uint64_t{1} << 31);

std::uint32_t load_u16(std::span<const std::uint8_t> bytes, std::size_t offset) {
  const auto part = bytes.subspan(offset, 2);
  return part[0] | static_cast<std::uint32_t>(part[1]) << 8;
}

std::uint32_t load_u32(std::span<const std::uint8_t> bytes, std::size_t offset) {
  return load_u16(bytes, offset) | load_u16(bytes, offset + 2) << 16;
}

std::uint64_t divide_up(std::uint64_t value, std::uint64_t by) {
  return (value + by - 1) / by;
}

// The FAT or the mini FAT: the next sector of each sector.
struct Sector_table {
  Byte_run bytes;

  std::size_t size() const { return bytes.size() / 4; }
  std::uint32_t next(std::uint32_t sector) const {
    return sector < size() ? load_u32(bytes, std::size_t{sector} * 4) : end_of_chain;
  }
};

// Detects cycles in a chain. A sector outside the table has no successor, so it needs no mark.
class Cycle_detector {
 public:
  explicit Cycle_detector(const Sector_table& table) : marked_(table.size()) {}
  // Returns false if the sector was marked before.
  bool mark(std::uint32_t sector) {
    if (sector >= marked_.size()) return true;
    if (marked_[sector]) return false;
    marked_[sector] = true;
    return true;
  }

 private:
  std::vector<bool> marked_;
};

// The sectors of a stream, up to the end of the chain, the start of a cycle or max_length sectors.
std::vector<std::uint32_t> stream_chain(const Sector_table& table, std::uint32_t first,
                                        std::uint64_t max_length) {
  std::vector<std::uint32_t> chain;
  Cycle_detector cycles(table);
  for (auto sector = first; sector <= last_chained_sector && chain.size() < max_length;
       sector = table.next(sector)) {
    if (!cycles.mark(sector)) break;
    chain.push_back(sector);
  }
  return chain;
}

struct Header {
  std::uint32_t sector_size = 0;
  std::uint32_t mini_sector_size = 0;
  std::uint32_t fat_sector_count = 0;
  std::uint32_t first_directory_sector = 0;
  std::uint32_t mini_stream_cutoff = 0;
  std::uint32_t first_mini_fat_sector = 0;
  std::uint32_t mini_fat_sector_count = 0;
  std::uint32_t first_difat_sector = 0;
  std::uint32_t difat_sector_count = 0;
  std::array<std::uint32_t, header_difat_entries> fat_sectors{};
};

Header parse_header(std::span<const std::uint8_t> bytes) {
  const auto size_by_shift = [bytes](std::size_t offset) {
    const std::uint32_t shift = load_u16(bytes, offset);
    return shift < 16 ? std::uint32_t{1} << shift : 0;
  };
  Header header;
  header.sector_size = size_by_shift(0x1E);
  header.mini_sector_size = size_by_shift(0x20);
  header.fat_sector_count = load_u32(bytes, 0x2C);
  header.first_directory_sector = load_u32(bytes, 0x30);
  header.mini_stream_cutoff = load_u32(bytes, 0x38);
  header.first_mini_fat_sector = load_u32(bytes, 0x3C);
  header.mini_fat_sector_count = load_u32(bytes, 0x40);
  header.first_difat_sector = load_u32(bytes, 0x44);
  header.difat_sector_count = load_u32(bytes, 0x48);
  for (std::size_t i = 0; i < header_difat_entries; ++i) {
    header.fat_sectors[i] = load_u32(bytes, 0x4C + 4 * i);
  }
  return header;
}

struct Directory_entry {
  std::uint32_t first_sector = 0;
  std::uint32_t size = 0;
};

// The state of one extraction.
class Tmxd_compound_file {
 public:
  explicit Tmxd_compound_file(Tmxd_stream& stream) : file_(stream, reachable_size) {}

  bool read_header_and_tables() { return read_header() && read_fat() && read_directory(); }
  std::optional<Directory_entry> find(Wide_view name) const;
  // Returns false only if memory runs out.
  bool copy(const Directory_entry& entry, Tmxd_stream_m& out);

 private:
  bool read_header();
  bool read_fat();
  bool read_directory();
  Sector_table read_mini_fat();

  Offsets fat_offsets();
  void append_difat_offsets(std::size_t count, Offsets& offsets);
  Offsets regular_offsets(std::uint32_t first, std::uint64_t length) const;
  Offsets mini_offsets(std::uint32_t first, std::uint64_t length);

  std::int64_t sector_offset(std::uint32_t sector) const;
  std::uint64_t sectors_in_file() const {
    return divide_up(file_.file_size() - header_size, table_sector_size);
  }
  Directory_entry entry(std::size_t index) const;

  Coalescing_reader file_;
  Header header_;
  Sector_table fat_;
  Byte_run directory_;
};

std::int64_t Tmxd_compound_file::sector_offset(std::uint32_t sector) const {
  const auto product = static_cast<std::int32_t>(sector * header_.sector_size);
  return static_cast<std::int64_t>(header_size) + product;
}

bool Tmxd_compound_file::read_header() {
  std::array<std::uint8_t, header_size> bytes;
  const Offsets start = {0};
  if (file_.read(start, header_size, bytes) != 1) return false;
  header_ = parse_header(bytes);
  return true;
}

// The offsets of the FAT sectors: no more than the header claims and the file can need.
Offsets Tmxd_compound_file::fat_offsets() {
  const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(
      header_.fat_sector_count, divide_up(sectors_in_file(), entries_per_fat_sector)));
  Offsets offsets;
  offsets.reserve(count);
  for (std::size_t i = 0; i < std::min(count, header_difat_entries); ++i) {
    offsets.push_back(sector_offset(header_.fat_sectors[i]));
  }
  if (header_.difat_sector_count != 0) append_difat_offsets(count, offsets);
  return offsets;
}

void Tmxd_compound_file::append_difat_offsets(std::size_t count, Offsets& offsets) {
  std::array<std::uint8_t, table_sector_size> difat;
  std::uint32_t sector = header_.first_difat_sector;
  for (std::uint32_t left = header_.difat_sector_count; left != 0 && offsets.size() < count;
       --left) {
    const Offsets here = {sector_offset(sector)};
    if (file_.read(here, table_sector_size, difat) != 1) return;
    for (std::size_t i = 0; i < entries_per_difat_sector && offsets.size() < count; ++i) {
      const std::uint32_t fat_sector = load_u32(difat, 4 * i);
      if (fat_sector > last_chained_sector) return;
      offsets.push_back(sector_offset(fat_sector));
    }
    sector = load_u32(difat, 4 * entries_per_difat_sector);
  }
}

bool Tmxd_compound_file::read_fat() {
  const Offsets offsets = fat_offsets();
  fat_.bytes.resize(offsets.size() * table_sector_size);
  return file_.read(offsets, table_sector_size, fat_.bytes) == offsets.size();
}

// Only the end-of-chain mark ends the directory; a chain that leaves the file or loops is an error.
bool Tmxd_compound_file::read_directory() {
  Offsets offsets;
  Cycle_detector cycles(fat_);
  std::uint32_t sector = header_.first_directory_sector;
  do {
    const std::int64_t offset = sector_offset(sector);
    if (!file_.in_file(offset, table_sector_size) || !cycles.mark(sector)) return false;
    offsets.push_back(offset);
    sector = fat_.next(sector);
  } while (sector != end_of_chain);
  directory_.resize(offsets.size() * table_sector_size);
  return file_.read(offsets, table_sector_size, directory_) == offsets.size();
}

// Sectors that cannot be read count as end-of-chain marks. A cycle fills the table up to its bound:
// what the header claims and the file can need.
Sector_table Tmxd_compound_file::read_mini_fat() {
  const std::uint64_t max_count = std::min<std::uint64_t>(
      header_.mini_fat_sector_count,
      divide_up(sectors_in_file() * mini_sectors_per_sector, entries_per_fat_sector));
  Offsets offsets;
  for (auto sector = header_.first_mini_fat_sector;
       sector <= last_chained_sector && sector_offset(sector) >= 0 && offsets.size() < max_count;
       sector = fat_.next(sector)) {
    offsets.push_back(sector_offset(sector));
  }
  Sector_table mini_fat{Byte_run(offsets.size() * table_sector_size)};
  const std::span<std::uint8_t> entries = mini_fat.bytes;
  for (std::size_t done = 0; done < offsets.size(); ++done) {
    done += file_.read(std::span(offsets).subspan(done), table_sector_size,
                       entries.subspan(done * table_sector_size));
    if (done == offsets.size()) break;
    // An entry of all ones also ends a chain.
    std::ranges::fill(entries.subspan(done * table_sector_size, table_sector_size),
                      std::uint8_t{0xFF});
  }
  return mini_fat;
}

Directory_entry Tmxd_compound_file::entry(std::size_t index) const {
  const auto bytes =
      std::span(directory_).subspan(index * directory_entry_size, directory_entry_size);
  return {load_u32(bytes, 116), load_u32(bytes, 120)};
}

std::optional<Directory_entry> Tmxd_compound_file::find(Wide_view name) const {
  constexpr std::size_t max_units = 32;
  const Wide_view wanted = trim(name);
  for (std::size_t i = 0; i < directory_.size() / directory_entry_size; ++i) {
    const auto bytes = std::span(directory_).subspan(i * directory_entry_size, 2 * max_units);
    std::array<Wide_char, max_units> units;
    for (std::size_t k = 0; k < max_units; ++k) {
      units[k] = static_cast<Wide_char>(load_u16(bytes, 2 * k));
    }
    const Wide_view whole(units.data(), units.size());
    if (equal_ignoring_case(trim(whole.substr(0, whole.find(Wide_char{}))), wanted)) {
      return entry(i);
    }
  }
  return std::nullopt;
}

Offsets Tmxd_compound_file::regular_offsets(std::uint32_t first, std::uint64_t length) const {
  Offsets offsets;
  for (const auto sector : stream_chain(fat_, first, divide_up(length, header_.sector_size))) {
    offsets.push_back(sector_offset(sector));
  }
  return offsets;
}

Offsets Tmxd_compound_file::mini_offsets(std::uint32_t first, std::uint64_t length) {
  const Sector_table mini_fat = read_mini_fat();
  const auto mini_stream_sectors = stream_chain(fat_, entry(0).first_sector, fat_.size() + 1);
  const std::uint32_t mini_size = header_.mini_sector_size;
  Offsets offsets;
  for (const auto mini : stream_chain(mini_fat, first, divide_up(length, mini_size))) {
    if (mini / mini_sectors_per_sector >= mini_stream_sectors.size()) break;
    offsets.push_back(sector_offset(mini_stream_sectors[mini / mini_sectors_per_sector]) +
                      static_cast<std::int64_t>(mini % mini_sectors_per_sector) * mini_size);
  }
  return offsets;
}

bool Tmxd_compound_file::copy(const Directory_entry& entry, Tmxd_stream_m& out) {
  const bool regular = entry.size >= header_.mini_stream_cutoff;
  const std::size_t piece_size = regular ? header_.sector_size : header_.mini_sector_size;
  // A stream cannot be longer than its file.
  const std::uint64_t length = std::min<std::uint64_t>(entry.size, file_.file_size());
  Offsets offsets;
  if (piece_size != 0) {
    offsets = regular ? regular_offsets(entry.first_sector, length)
                      : mini_offsets(entry.first_sector, length);
  }
  if (!out.resize_uninitialized(offsets.size() * piece_size) || !out.seek(0)) return false;
  const std::uint64_t arrived = file_.read(offsets, piece_size, out.bytes()) * piece_size;
  return out.set_size(std::min(arrived, length));
}

}  // namespace

bool read_named_stream(const Wide_string& path, Wide_view name, Tmxd_stream_m& out) {
  Tmxd_stream_f file;
  return file.open(path, from_ascii("rb")) && read_named_stream(file, name, out);
}

bool read_named_stream(Tmxd_stream& file, Wide_view name, Tmxd_stream_m& out) try {
  Tmxd_compound_file reader(file);
  const auto entry = reader.read_header_and_tables() ? reader.find(name) : std::nullopt;
  return entry && reader.copy(*entry, out);
} catch (const std::bad_alloc&) {
  return false;
}

}  // namespace mxd
