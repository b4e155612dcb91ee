#include "storage/compound_file.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <span>
#include <vector>

#include "storage/coalescing_reader.h"
#include "storage/file_stream.h"
#include "storage/native_text.h"

namespace mxd {
namespace {

using Bytes = std::span<std::uint8_t>;

constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
constexpr std::uint32_t last_chained_sector = 0x7FFFFFFF;
// The header, and what every table is read by, whatever the size of a sector.
constexpr std::size_t row_size = 512;
constexpr std::size_t links_per_row = row_size / 4;
constexpr std::size_t rows_in_header = 109;
constexpr std::size_t rows_per_difat_sector = links_per_row - 1;
constexpr std::size_t entry_size = 128;
constexpr std::size_t mini_sectors_per_sector = 8;
// Offsets are 32-bit products, so nothing beyond is ever reached.
constexpr std::uint64_t reachable_size = row_size + (std::uint64_t{1} << 31);

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

// The FAT or the mini FAT: which sector follows which.
struct Link_table {
  Byte_run bytes;

  std::size_t size() const { return bytes.size() / 4; }
  std::uint32_t next(std::uint32_t sector) const {
    return sector < size() ? load_u32(bytes, std::size_t{sector} * 4) : end_of_chain;
  }
};

// Tells a circle from a chain. Nothing follows a sector outside the table, so that those need no
// note.
class Visited_sectors {
 public:
  explicit Visited_sectors(const Link_table& links) : visited_(links.size()) {}
  bool first_visit(std::uint32_t sector) {
    if (sector >= visited_.size()) return true;
    if (visited_[sector]) return false;
    visited_[sector] = true;
    return true;
  }

 private:
  std::vector<bool> visited_;
};

// The sectors of a stream from the first on, until the chain ends, runs in a circle or is longer
// than needed.
std::vector<std::uint32_t> stream_chain(const Link_table& links, std::uint32_t first,
                                        std::uint64_t most) {
  std::vector<std::uint32_t> chain;
  Visited_sectors visited(links);
  for (auto sector = first; sector <= last_chained_sector && chain.size() < most;
       sector = links.next(sector)) {
    if (!visited.first_visit(sector)) break;
    chain.push_back(sector);
  }
  return chain;
}

struct Header {
  std::uint32_t sector_size = 0;
  std::uint32_t mini_sector_size = 0;
  std::uint32_t fat_rows = 0;
  std::uint32_t first_directory_sector = 0;
  std::uint32_t mini_stream_cutoff = 0;
  std::uint32_t first_mini_fat_sector = 0;
  std::uint32_t mini_fat_rows = 0;
  std::uint32_t first_difat_sector = 0;
  std::uint32_t difat_sectors = 0;
  std::array<std::uint32_t, rows_in_header> fat_sectors{};
};

Header parse_header(std::span<const std::uint8_t> bytes) {
  const auto size_by_shift = [bytes](std::size_t offset) {
    const std::uint32_t shift = load_u16(bytes, offset);
    return shift < 16 ? std::uint32_t{1} << shift : 0;
  };
  Header header;
  header.sector_size = size_by_shift(0x1E);
  header.mini_sector_size = size_by_shift(0x20);
  header.fat_rows = load_u32(bytes, 0x2C);
  header.first_directory_sector = load_u32(bytes, 0x30);
  header.mini_stream_cutoff = load_u32(bytes, 0x38);
  header.first_mini_fat_sector = load_u32(bytes, 0x3C);
  header.mini_fat_rows = load_u32(bytes, 0x40);
  header.first_difat_sector = load_u32(bytes, 0x44);
  header.difat_sectors = load_u32(bytes, 0x48);
  for (std::size_t i = 0; i < rows_in_header; ++i) {
    header.fat_sectors[i] = load_u32(bytes, 0x4C + 4 * i);
  }
  return header;
}

struct Directory_entry {
  std::uint32_t first_sector = 0;
  std::uint32_t size = 0;
};

// The reader's state for one call.
class Tmxd_compound_file {
 public:
  explicit Tmxd_compound_file(Tmxd_stream& stream) : file_(stream, reachable_size) {}

  bool read_header_and_tables() { return read_header() && read_fat() && read_directory(); }
  std::optional<Directory_entry> find(Wide_view name) const;
  // False only when memory runs out.
  bool copy(const Directory_entry& entry, Tmxd_stream_m& out);
  std::uint64_t bytes_read() const { return file_.bytes_read(); }

 private:
  bool read_header();
  bool read_fat();
  bool read_directory();
  Link_table read_mini_fat();

  Offsets fat_offsets();
  void append_difat_offsets(std::size_t rows, Offsets& offsets);
  Offsets regular_offsets(std::uint32_t first, std::uint64_t length) const;
  Offsets mini_offsets(std::uint32_t first, std::uint64_t length);

  std::int64_t sector_offset(std::uint32_t sector) const;
  std::uint64_t sectors_in_file() const {
    return divide_up(file_.file_size() - row_size, row_size);
  }
  Directory_entry entry(std::size_t index) const;

  Coalescing_reader file_;
  Header header_;
  Link_table fat_;
  Byte_run directory_;
};

std::int64_t Tmxd_compound_file::sector_offset(std::uint32_t sector) const {
  const auto product = static_cast<std::int32_t>(sector * header_.sector_size);
  return static_cast<std::int64_t>(row_size) + product;
}

bool Tmxd_compound_file::read_header() {
  std::array<std::uint8_t, row_size> bytes;
  const Offsets start = {0};
  if (file_.read(start, row_size, bytes) != 1) return false;
  header_ = parse_header(bytes);
  return true;
}

// Where the FAT lies: no more rows than the header claims and the file can need.
Offsets Tmxd_compound_file::fat_offsets() {
  const auto rows = static_cast<std::size_t>(
      std::min<std::uint64_t>(header_.fat_rows, divide_up(sectors_in_file(), links_per_row)));
  Offsets offsets;
  offsets.reserve(rows);
  for (std::size_t i = 0; i < std::min(rows, rows_in_header); ++i) {
    offsets.push_back(sector_offset(header_.fat_sectors[i]));
  }
  if (header_.difat_sectors != 0) append_difat_offsets(rows, offsets);
  return offsets;
}

void Tmxd_compound_file::append_difat_offsets(std::size_t rows, Offsets& offsets) {
  std::array<std::uint8_t, row_size> difat;
  std::uint32_t sector = header_.first_difat_sector;
  for (std::uint32_t left = header_.difat_sectors; left != 0 && offsets.size() < rows; --left) {
    const Offsets here = {sector_offset(sector)};
    if (file_.read(here, row_size, difat) != 1) return;
    for (std::size_t i = 0; i < rows_per_difat_sector && offsets.size() < rows; ++i) {
      const std::uint32_t fat_sector = load_u32(difat, 4 * i);
      if (fat_sector > last_chained_sector) return;
      offsets.push_back(sector_offset(fat_sector));
    }
    sector = load_u32(difat, 4 * rows_per_difat_sector);
  }
}

bool Tmxd_compound_file::read_fat() {
  const Offsets offsets = fat_offsets();
  fat_.bytes.resize(offsets.size() * row_size);
  return file_.read(offsets, row_size, fat_.bytes) == offsets.size();
}

// Only the end-of-chain mark ends the directory; a chain that leaves the file or runs in a circle
// is none.
bool Tmxd_compound_file::read_directory() {
  Offsets offsets;
  Visited_sectors visited(fat_);
  std::uint32_t sector = header_.first_directory_sector;
  do {
    const std::int64_t offset = sector_offset(sector);
    if (!file_.in_file(offset, row_size) || !visited.first_visit(sector)) return false;
    offsets.push_back(offset);
    sector = fat_.next(sector);
  } while (sector != end_of_chain);
  directory_.resize(offsets.size() * row_size);
  return file_.read(offsets, row_size, directory_) == offsets.size();
}

// Rows that cannot be read count as end-of-chain marks. A circle fills the table, which is no
// longer than the header claims and the file can need.
Link_table Tmxd_compound_file::read_mini_fat() {
  const std::uint64_t most_rows = std::min<std::uint64_t>(
      header_.mini_fat_rows, divide_up(sectors_in_file() * mini_sectors_per_sector, links_per_row));
  Offsets offsets;
  for (auto sector = header_.first_mini_fat_sector;
       sector <= last_chained_sector && sector_offset(sector) >= 0 && offsets.size() < most_rows;
       sector = fat_.next(sector)) {
    offsets.push_back(sector_offset(sector));
  }
  Link_table mini_fat{Byte_run(offsets.size() * row_size)};
  const Bytes rows = mini_fat.bytes;
  for (std::size_t done = 0; done < offsets.size(); ++done) {
    done += file_.read(std::span(offsets).subspan(done), row_size, rows.subspan(done * row_size));
    if (done == offsets.size()) break;
    // A link of all ones ends a chain as well.
    std::ranges::fill(rows.subspan(done * row_size, row_size), std::uint8_t{0xFF});
  }
  return mini_fat;
}

Directory_entry Tmxd_compound_file::entry(std::size_t index) const {
  const auto bytes = std::span(directory_).subspan(index * entry_size, entry_size);
  return {load_u32(bytes, 116), load_u32(bytes, 120)};
}

std::optional<Directory_entry> Tmxd_compound_file::find(Wide_view name) const {
  constexpr std::size_t most_units = 32;
  const Wide_view wanted = trim(name);
  for (std::size_t i = 0; i < directory_.size() / entry_size; ++i) {
    const auto bytes = std::span(directory_).subspan(i * entry_size, 2 * most_units);
    std::array<Wide_char, most_units> units;
    for (std::size_t k = 0; k < most_units; ++k) {
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
  const Link_table mini_fat = read_mini_fat();
  const auto holders = stream_chain(fat_, entry(0).first_sector, fat_.size() + 1);
  const std::uint32_t piece = header_.mini_sector_size;
  Offsets offsets;
  for (const auto mini : stream_chain(mini_fat, first, divide_up(length, piece))) {
    if (mini / mini_sectors_per_sector >= holders.size()) break;
    offsets.push_back(sector_offset(holders[mini / mini_sectors_per_sector]) +
                      static_cast<std::int64_t>(mini % mini_sectors_per_sector) * piece);
  }
  return offsets;
}

bool Tmxd_compound_file::copy(const Directory_entry& entry, Tmxd_stream_m& out) {
  const bool regular = entry.size >= header_.mini_stream_cutoff;
  const std::size_t piece = regular ? header_.sector_size : header_.mini_sector_size;
  // No honest stream is longer than its file.
  const std::uint64_t length = std::min<std::uint64_t>(entry.size, file_.file_size());
  Offsets offsets;
  if (piece != 0) {
    offsets = regular ? regular_offsets(entry.first_sector, length)
                      : mini_offsets(entry.first_sector, length);
  }
  if (!out.resize_uninitialized(offsets.size() * piece) || !out.seek(0)) return false;
  const std::uint64_t arrived = file_.read(offsets, piece, out.bytes()) * piece;
  return out.set_size(std::min(arrived, length));
}

}  // namespace

int read_named_stream(const Wide_string& path, Wide_view name, Tmxd_stream_m& out,
                      std::uint64_t* bytes_read) {
  Tmxd_stream_f stream;
  return stream.open(path, from_ascii("rb")) ? read_named_stream(stream, name, out, bytes_read) : 0;
}

int read_named_stream(Tmxd_stream& stream, Wide_view name, Tmxd_stream_m& out,
                      std::uint64_t* bytes_read) try {
  Tmxd_compound_file file(stream);
  const auto entry = file.read_header_and_tables() ? file.find(name) : std::nullopt;
  const bool copied = entry && file.copy(*entry, out);
  if (bytes_read) *bytes_read = file.bytes_read();
  return copied ? 1 : 0;
} catch (const std::bad_alloc&) {
  return 0;
}

}  // namespace mxd
