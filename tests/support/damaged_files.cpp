#include "support/damaged_files.h"

#include <span>

namespace mxd::test {
namespace {

using Change = Compound_file (*)(Compound_file);

struct Row {
  const char* name;
  std::size_t kept;
  Change change;
};

constexpr auto maps = "Maps";
constexpr auto directory = Compound_file::directory;
constexpr auto mini_stream = Compound_file::mini_stream;
constexpr auto mini_fat = Compound_file::mini_fat;
constexpr std::uint32_t max_count = 0xFFFFFFFF;

const Row rows[] = {
    {"stream ends early", 5 * 512, [](auto file) { return file.link(maps, 4, end_of_chain); }},
    {"stream leaves the file", 5 * 512,
     [](auto file) { return file.link(maps, 4, sector_outside); }},
    {"stream leads to a free sector", 5 * 512,
     [](auto file) { return file.link(maps, 4, free_sector); }},
    {"stream loops", 10 * 512, [](auto file) { return file.circle(maps, 9, 1); }},
    {"sector follows itself", 5 * 512, [](auto file) { return file.circle(maps, 4, 4); }},
    {"stream starts outside", 0, [](auto file) { return file.first_sector(maps, sector_outside); }},
    {"stream starts nowhere", 0, [](auto file) { return file.first_sector(maps, end_of_chain); }},
    {"stream of 4 GiB", all_bytes, [](auto file) { return file.claimed_size(maps, max_count); }},
    {"stream and table sizes at their maximum", all_bytes,
     [](auto file) {
       return file.claimed_size(maps, max_count)
           .header(Header_field::fat_sectors, max_count)
           .header(Header_field::mini_fat_sectors, max_count)
           .header(Header_field::difat_sectors, max_count);
     }},
    {"directory loops", unreadable, [](auto file) { return file.circle(directory, 1, 0); }},
    {"directory sector follows itself", unreadable,
     [](auto file) { return file.circle(directory, 0, 0); }},
    {"directory leaves the file", unreadable,
     [](auto file) { return file.link(directory, 0, sector_outside); }},
    {"directory without an end mark", unreadable,
     [](auto file) { return file.link(directory, 1, 0xFFFFFFFD); }},
    {"directory starts outside", unreadable,
     [](auto file) { return file.header(Header_field::first_directory_sector, 0x7000); }},
    {"no directory", unreadable,
     [](auto file) { return file.header(Header_field::first_directory_sector, end_of_chain); }},
    {"FAT outside", unreadable,
     [](auto file) { return file.header(Header_field::first_fat_sector, sector_outside); }},
    {"FAT nowhere", unreadable,
     [](auto file) { return file.header(Header_field::first_fat_sector, end_of_chain); }},
    {"second FAT sector outside", unreadable,
     [](auto file) {
       return file.unused_sectors(200).header(Header_field::second_fat_sector, sector_outside);
     }},
    {"no FAT", 512, [](auto file) { return file.header(Header_field::fat_sectors, 0); }},
    {"DIFAT loops", unspecified,
     [](auto file) {
       return file.header(Header_field::fat_sectors, max_count)
           .header(Header_field::difat_sectors, max_count)
           .header(Header_field::first_difat_sector, 0);
     }},
};

// The same for a file whose streams are all in the mini stream.
const Row mini_rows[] = {
    {"ends early", 10 * 64, [](auto file) { return file.link(maps, 9, end_of_chain); }},
    {"leaves the table", 10 * 64, [](auto file) { return file.link(maps, 9, sector_outside); }},
    {"loops", 10 * 64, [](auto file) { return file.circle(maps, 9, 3); }},
    {"mini stream ends", 16 * 64,
     [](auto file) { return file.link(mini_stream, 1, end_of_chain); }},
    {"mini stream ends between mini sectors", 8 * 64,
     [](auto file) { return file.fragmented(2).link(mini_stream, 1, end_of_chain); }},
    {"mini stream leaves the file", 16 * 64,
     [](auto file) { return file.link(mini_stream, 1, sector_outside); }},
    {"mini stream loops", 16 * 64, [](auto file) { return file.circle(mini_stream, 1, 0); }},
    {"no mini FAT", 64, [](auto file) { return file.header(Header_field::mini_fat_sectors, 0); }},
    {"mini FAT outside", 64,
     [](auto file) { return file.header(Header_field::first_mini_fat_sector, sector_outside); }},
    {"second mini FAT sector outside", 129 * 64,
     [](auto file) { return file.link(mini_fat, 0, sector_outside); }},
    {"mini FAT loops", 129 * 64,
     [](auto file) {
       return file.circle(mini_fat, 0, 0).header(Header_field::mini_fat_sectors, max_count);
     }},
};

void add_headers(std::vector<Damaged_file>& files, const std::string& name,
                 const Compound_file& intact) {
  const auto add = [&](const char* field_name, Header_field field, std::uint32_t value,
                       std::size_t kept) {
    files.push_back({name + field_name + std::to_string(value),
                     Compound_file(intact).header(field, value), kept});
  };
  for (const std::uint32_t count : {100'000U, 0x80000000U, max_count}) {
    add("FAT sectors ", Header_field::fat_sectors, count, all_bytes);
    add("mini FAT sectors ", Header_field::mini_fat_sectors, count, all_bytes);
    add("DIFAT sectors ", Header_field::difat_sectors, count, all_bytes);
  }
  for (const std::uint32_t shift : {0U, 1U, 10U, 12U, 15U, 16U, 0xFFFFU}) {
    add("sector shift ", Header_field::sector_shift, shift, unspecified);
    add("mini sector shift ", Header_field::mini_sector_shift, shift, unspecified);
  }
}

}  // namespace

std::vector<Damaged_file> damaged_files(std::size_t maps_size) {
  const Compound_file intact = Compound_file()
                                   .stream(maps, noise(maps_size))
                                   .stream("Mini", noise(700, 2))
                                   .storage("Layout")
                                   .stream("Other", noise(100, 3));
  const Compound_file mini = Compound_file(intact).cutoff(0x7FFFFFFF);
  std::vector<Damaged_file> files;
  for (const Row& row : rows) files.push_back({row.name, row.change(intact), row.kept});
  add_headers(files, "", intact);
  for (const Row& row : mini_rows) {
    files.push_back({std::string("mini: ") + row.name, row.change(mini), row.kept});
  }
  add_headers(files, "mini: ", mini);
  return files;
}

}  // namespace mxd::test
