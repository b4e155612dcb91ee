#include "storage/compound_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/damaged_files.h"
#include "support/temp_file.h"

namespace mxd {
namespace {

using test::Compound_file;
using test::Header_field;
using test::noise;
using test::Temp_file;

struct Extracted {
  bool found = false;
  Byte_run bytes;
};

// The content of `out` before the call: shows whether it is unchanged.
const Byte_run before = {'o', 'l', 'd'};

Extracted extract(const Byte_run& file, std::string_view name = "Maps") {
  const Temp_file temp(file);
  Tmxd_stream_m out;
  EXPECT_TRUE(out.write(before.data(), 1, before.size()));
  const bool found = read_named_stream(temp.path(), from_ascii(name), out);
  return {found, {out.bytes().begin(), out.bytes().end()}};
}

void expect_found(const Byte_run& file, const Byte_run& bytes, const std::string& what) {
  const Extracted extracted = extract(file);
  EXPECT_TRUE(extracted.found) << what;
  EXPECT_TRUE(extracted.bytes == bytes)
      << what << ": " << extracted.bytes.size() << " bytes for " << bytes.size();
}

void expect_nothing(const Byte_run& file, const std::string& what) {
  const Extracted extracted = extract(file);
  EXPECT_FALSE(extracted.found) << what;
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
  // More mini sectors than one sector of the mini FAT covers.
  const Byte_run many = noise(30000);
  expect_found(Compound_file().cutoff(40000).stream("Maps", many).fragmented(3).build(), many,
               "long mini stream");
}

TEST(Compound_file, a_large_fat_is_found_through_the_difat) {
  const Byte_run bytes = noise(7'500'000);
  for (const std::size_t stride : {1U, 3U}) {
    const auto file = Compound_file().stream("Maps", bytes).fragmented(stride).build();
    expect_found(file, bytes, "DIFAT in steps of " + std::to_string(stride));
  }
  // Enough for a second DIFAT sector.
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
               "an unused entry");
  expect_found(Compound_file().storage("Maps").stream("Maps", bytes).build(), {}, "a storage");
  Compound_file many;
  for (int i = 0; i < 50; ++i) many.stream("Decoy " + std::to_string(i), noise(70));
  expect_found(many.stream("Maps", bytes).fragmented(5).build(), bytes, "many others before");
}

TEST(Compound_file, the_signature_is_not_checked) {
  const Byte_run bytes = noise(100);
  expect_found(Compound_file().stream("Maps", bytes).signature("notOLE!!").build(), bytes,
               "foreign");
}

TEST(Compound_file, of_a_damaged_file_the_part_before_the_damage_is_read) {
  constexpr std::size_t size = 9216;
  const Byte_run bytes = noise(size);
  for (const auto& [name, file, kept] : test::damaged_files(size)) {
    const Byte_run damaged = file.build();
    if (kept == test::unspecified) {
      EXPECT_LE(extract(damaged).bytes.size(), damaged.size()) << name;
    } else if (kept == test::unreadable) {
      expect_nothing(damaged, name);
    } else {
      expect_found(damaged, first(bytes, std::min(kept, size)), name);
    }
  }
  expect_nothing({}, "empty file");
  expect_nothing(Byte_run(511), "less than a header");
  expect_nothing(first(Compound_file().stream("Maps", bytes).build(), 512), "only a header");
}

// Of 258 sectors the third FAT sector has two. The stream goes on after the first of them.
TEST(Compound_file, the_last_fat_sector_is_read_for_few_entries) {
  const Byte_run bytes = noise(254 * 512);
  const Byte_run file = Compound_file().stream("Maps", bytes).fragmented(2).build();
  ASSERT_EQ(file.size(), (1 + 258) * 512U);
  expect_found(file, bytes, "258 sectors");
}

TEST(Compound_file, any_truncation_gives_a_prefix_or_nothing) {
  const Byte_run bytes = noise(9000);
  for (const std::uint32_t cutoff : {4096U, 10000U}) {
    const Byte_run whole =
        Compound_file().cutoff(cutoff).stream("Maps", bytes).fragmented(3).build();
    for (std::size_t size = 0; size <= whole.size(); size += 256) {
      const Extracted extracted = extract(first(whole, size));
      if (!extracted.found) {
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
  EXPECT_FALSE(read_named_stream(file.beside(u"missing.mxd"), from_ascii("Maps"), out));
}

}  // namespace
}  // namespace mxd
