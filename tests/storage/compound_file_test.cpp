#include "storage/compound_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/compound_builder.h"
#include "support/temp_file.h"

namespace mxd {
namespace {

using test::Compound_file;
using test::end_of_chain;
using test::free_sector;
using test::Header_field;
using test::noise;
using test::sector_outside;
using test::Temp_file;

struct Extracted {
  int result = 0;
  Byte_run bytes;
};

// What `out` held before the reading, so that an untouched one shows.
const Byte_run before = {'o', 'l', 'd'};

Extracted extract(const Byte_run& file, std::string_view name = "Maps") {
  const Temp_file temp(file);
  Tmxd_stream_m out;
  out.write(before.data(), 1, before.size());
  const int result = read_named_stream(temp.path(), from_ascii(name), out);
  return {result, {out.bytes().begin(), out.bytes().end()}};
}

void expect_found(const Byte_run& file, const Byte_run& bytes, const std::string& what) {
  const Extracted extracted = extract(file);
  EXPECT_EQ(extracted.result, 1) << what;
  EXPECT_TRUE(extracted.bytes == bytes)
      << what << ": " << extracted.bytes.size() << " bytes for " << bytes.size();
}

void expect_nothing(const Byte_run& file, const std::string& what) {
  const Extracted extracted = extract(file);
  EXPECT_EQ(extracted.result, 0) << what;
  EXPECT_EQ(extracted.bytes, before) << what;
}

Byte_run first(const Byte_run& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

TEST(Compound_file, streams_of_all_sizes_come_out_whole) {
  for (const std::size_t stride : {1U, 2U, 3U, 7U}) {
    for (const std::size_t size :
         {0U, 1U, 63U, 64U, 65U, 511U, 513U, 4095U, 4096U, 4097U, 70000U}) {
      const Byte_run bytes = noise(size);
      const auto file = Compound_file()
                            .stream("Small", noise(700, 2))
                            .stream("Large", noise(9000, 3))
                            .stream("Maps", bytes)
                            .stream("Other", noise(300, 4))
                            .unused_sectors(5)
                            .fragmented(stride)
                            .build();
      expect_found(file, bytes, std::to_string(size) + " in steps of " + std::to_string(stride));
    }
  }
}

TEST(Compound_file, the_header_chooses_the_cutoff) {
  const Byte_run bytes = noise(1000);
  expect_found(Compound_file().cutoff(1000).stream("Maps", bytes).build(), bytes, "regular");
  expect_found(Compound_file().cutoff(1001).stream("Maps", bytes).build(), bytes, "mini");
  // More mini sectors than one sector of the mini FAT tells of.
  const Byte_run many = noise(30000);
  expect_found(Compound_file().cutoff(40000).stream("Maps", many).fragmented(3).build(), many,
               "long mini stream");
}

TEST(Compound_file, a_long_fat_is_found_through_its_own_list) {
  const Byte_run bytes = noise(7'500'000);
  for (const std::size_t stride : {1U, 3U}) {
    const auto file = Compound_file().stream("Maps", bytes).fragmented(stride).build();
    expect_found(file, bytes, "DIFAT in steps of " + std::to_string(stride));
  }
  // Enough to need a second sector of the list.
  const auto file =
      Compound_file().unused_sectors(31000).stream("Maps", bytes).fragmented(3).build();
  expect_found(file, bytes, "two DIFAT sectors");
  expect_found(Compound_file().stream("Maps", bytes).header(Header_field::difat_sectors, 0).build(),
               first(bytes, (109 * 128 + 1) * 512), "only the header's 109 sectors");
}

TEST(Compound_file, a_name_is_found_with_blanks_and_in_any_case) {
  const Byte_run bytes = noise(100);
  for (const auto* name : {"Maps", "MAPS", " Maps", "maps\t\r\n "}) {
    expect_found(Compound_file().stream("Mapz", noise(9)).stream(name, bytes).build(), bytes, name);
  }
  for (const auto* name : {"Map", "Mapss", "M aps", ""}) {
    expect_nothing(Compound_file().stream(name, bytes).build(), name);
  }
  EXPECT_EQ(extract(Compound_file().stream("Maps", bytes).build(), " mAPS ").bytes, bytes);
}

TEST(Compound_file, the_first_entry_of_the_name_wins_whatever_it_is) {
  const Byte_run bytes = noise(100);
  expect_found(Compound_file().stream("Maps", bytes).stream("MAPS", noise(5000, 2)).build(), bytes,
               "two streams");
  expect_found(Compound_file().unused_entry("Maps").stream("Maps", bytes).build(), {},
               "an entry out of use");
  expect_found(Compound_file().storage("Maps").stream("Maps", bytes).build(), {}, "a storage");
  Compound_file many;
  for (int i = 0; i < 50; ++i) many.stream("Decoy " + std::to_string(i), noise(70));
  expect_found(many.stream("Maps", bytes).fragmented(5).build(), bytes, "many others before");
}

TEST(Compound_file, any_signature_will_do) {
  const Byte_run bytes = noise(100);
  expect_found(Compound_file().stream("Maps", bytes).signature("notOLE!!").build(), bytes,
               "foreign");
}

TEST(Compound_file, a_broken_stream_yields_the_whole_sectors_before_the_break) {
  const Byte_run bytes = noise(6000);
  const Byte_run mini = noise(1500, 2);
  const auto file = [&] { return Compound_file().stream("Maps", bytes).stream("x", mini); };
  const std::pair<std::string, Compound_file> regular[] = {
      {"ends early", file().link("Maps", 4, end_of_chain)},
      {"leaves the file", file().link("Maps", 4, sector_outside)},
      {"leads to a free sector", file().link("Maps", 4, free_sector)},
      {"runs in a circle", file().circle("Maps", 4, 1)},
      {"runs on the spot", file().circle("Maps", 4, 4)},
  };
  for (const auto& [what, damaged] : regular) {
    expect_found(damaged.build(), first(bytes, 5 * 512), what);
  }
  expect_found(file().claimed_size("Maps", 0xFFFFFFFF).build(),
               extract(file().claimed_size("Maps", 12 * 512).build()).bytes, "claims 4 GiB");
  expect_found(file().first_sector("Maps", sector_outside).build(), {}, "starts outside");
  expect_found(file().first_sector("Maps", end_of_chain).build(), {}, "starts nowhere");
}

TEST(Compound_file, a_broken_mini_stream_yields_the_mini_sectors_before_the_break) {
  const Byte_run bytes = noise(3000);
  const auto file = [&] { return Compound_file().stream("Maps", bytes); };
  struct Case {
    const char* what;
    Compound_file file;
    std::size_t mini_sectors;
  };
  const Case cases[] = {
      {"ends early", file().link("Maps", 9, end_of_chain), 10},
      {"leaves the table", file().link("Maps", 9, sector_outside), 10},
      {"runs in a circle", file().circle("Maps", 9, 3), 10},
      {"the holder ends", file().link(Compound_file::mini_stream, 1, end_of_chain), 16},
      {"the holder ends before a mini sector that others follow",
       file().fragmented(2).link(Compound_file::mini_stream, 1, end_of_chain), 8},
      {"the holder leaves the file", file().link(Compound_file::mini_stream, 1, sector_outside),
       16},
      {"the holder runs in a circle", file().circle(Compound_file::mini_stream, 1, 0), 16},
      {"no mini FAT", file().header(Header_field::mini_fat_sectors, 0), 1},
      {"mini FAT outside", file().header(Header_field::first_mini_fat_sector, sector_outside), 1},
  };
  for (const auto& [what, damaged, mini_sectors] : cases) {
    expect_found(damaged.build(), first(bytes, mini_sectors * 64), what);
  }
  expect_found(file().circle(Compound_file::mini_fat, 0, 0).build(), bytes, "mini FAT in a circle");
  const Byte_run longer = noise(15000);
  const auto two_rows = Compound_file().cutoff(20000).stream("x", noise(64)).stream("Maps", longer);
  expect_found(Compound_file(two_rows).link(Compound_file::mini_fat, 0, sector_outside).build(),
               first(longer, 128 * 64), "the second row of the mini FAT outside");
}

TEST(Compound_file, broken_tables_fail_the_reading) {
  const auto file = [] {
    return Compound_file()
        .stream("a", noise(10))
        .stream("b", noise(20))
        .stream("c", noise(30))
        .stream("Maps", noise(9000));
  };
  const std::pair<const char*, Compound_file> cases[] = {
      {"directory in a circle", file().circle(Compound_file::directory, 1, 0)},
      {"directory leaves the file", file().link(Compound_file::directory, 0, sector_outside)},
      {"directory without an end mark", file().link(Compound_file::directory, 1, 0xFFFFFFFD)},
      {"directory starts outside", file().header(Header_field::first_directory_sector, 0x7000)},
      {"no directory", file().header(Header_field::first_directory_sector, end_of_chain)},
      {"FAT outside", file().header(Header_field::first_fat_sector, sector_outside)},
      {"FAT nowhere", file().header(Header_field::first_fat_sector, end_of_chain)},
      {"second row of the FAT outside",
       file().unused_sectors(200).header(Header_field::second_fat_sector, sector_outside)},
      {"no FAT", file().header(Header_field::fat_sectors, 0)},
  };
  for (const auto& [what, damaged] : cases) expect_nothing(damaged.build(), what);
  expect_nothing({}, "empty file");
  expect_nothing(Byte_run(511), "less than a header");
  expect_nothing(first(file().build(), 512), "only a header");
}

TEST(Compound_file, claims_of_the_header_do_not_count_beyond_the_file) {
  const Byte_run bytes = noise(9000);
  const auto file = [&] { return Compound_file().stream("Maps", bytes); };
  for (const auto field :
       {Header_field::fat_sectors, Header_field::mini_fat_sectors, Header_field::difat_sectors}) {
    for (const std::uint32_t claim : {100'000U, 0x80000000U, 0xFFFFFFFFU}) {
      expect_found(file().header(field, claim).build(), bytes, "claims " + std::to_string(claim));
    }
  }
  // Nothing sensible comes out of sectors of other sizes, but no more than the file holds.
  for (const std::uint32_t shift : {0U, 1U, 10U, 12U, 15U, 16U, 0xFFFFU}) {
    for (const auto field : {Header_field::sector_shift, Header_field::mini_sector_shift}) {
      const auto whole = file()
                             .cutoff(10000)
                             .claimed_size("Maps", 0xFFFFFFFE)
                             .header(Header_field::cutoff, 0xFFFFFFFF)
                             .header(field, shift)
                             .build();
      EXPECT_LE(extract(whole).bytes.size(), whole.size()) << shift;
    }
  }
}

TEST(Compound_file, any_truncation_gives_a_prefix_or_nothing) {
  const Byte_run bytes = noise(9000);
  for (const std::uint32_t cutoff : {4096U, 10000U}) {
    const Byte_run whole =
        Compound_file().cutoff(cutoff).stream("Maps", bytes).fragmented(3).build();
    for (std::size_t size = 0; size <= whole.size(); size += 256) {
      const Extracted extracted = extract(first(whole, size));
      if (extracted.result == 0) {
        EXPECT_EQ(extracted.bytes, before) << size;
      } else {
        ASSERT_LE(extracted.bytes.size(), bytes.size()) << size;
        EXPECT_EQ(extracted.bytes, first(bytes, extracted.bytes.size())) << size;
      }
    }
    EXPECT_EQ(extract(whole).bytes, bytes);
  }
}

TEST(Compound_file, a_missing_file_has_no_streams) {
  const Temp_file file;
  Tmxd_stream_m out;
  EXPECT_EQ(read_named_stream(file.beside(u"missing.mxd"), from_ascii("Maps"), out), 0);
}

}  // namespace
}  // namespace mxd
