#include "storage/compound_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "support/damaged_files.h"
#include "support/temp_file.h"

namespace mxd::test {
namespace {

// The content of the stream. When nothing is found, the output keeps what it had before.
std::optional<Byte_run> extract(const Byte_run& file, std::string_view name = "Maps") {
  const Byte_run before = {'o', 'l', 'd'};
  const Temp_file temp(file);
  Tmxd_stream_m out;
  EXPECT_TRUE(out.write(before.data(), 1, before.size()));
  const bool found = read_named_stream(temp.path(), from_ascii(name), out);
  const Byte_run bytes(out.bytes().begin(), out.bytes().end());
  if (found) return bytes;
  EXPECT_EQ(bytes, before);
  return std::nullopt;
}

std::optional<Byte_run> extract(const Compound_file& file) {
  return extract(file.build());
}

Byte_run first(const Byte_run& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

TEST(Compound_file, streams_of_all_sizes_come_out_whole) {
  for (const std::size_t stride : {1U, 2U, 3U, 7U}) {
    for (const std::size_t size :
         {0U, 1U, 63U, 64U, 65U, 511U, 513U, 4095U, 4096U, 4097U, 70000U}) {
      const Byte_run bytes = noise(size);
      EXPECT_EQ(extract(Compound_file()
                            .stream("Small", noise(700, 2))
                            .stream("Large", noise(9000, 3))
                            .stream("Maps", bytes)
                            .stream("Other", noise(300, 4))
                            .unused_sectors(5)
                            .fragmented(stride)),
                bytes)
          << size << " in steps of " << stride;
    }
  }
}

TEST(Compound_file, the_header_chooses_the_cutoff) {
  const Byte_run bytes = noise(1000);
  EXPECT_EQ(extract(Compound_file().cutoff(1000).stream("Maps", bytes)), bytes) << "regular";
  EXPECT_EQ(extract(Compound_file().cutoff(1001).stream("Maps", bytes)), bytes) << "mini";
  // More mini sectors than one sector of the mini FAT covers.
  const Byte_run many = noise(30000);
  EXPECT_EQ(extract(Compound_file().cutoff(40000).stream("Maps", many).fragmented(3)), many);
}

TEST(Compound_file, a_large_fat_is_found_through_the_difat) {
  const Byte_run bytes = noise(7'500'000);
  const Compound_file file = Compound_file().stream("Maps", bytes);
  EXPECT_EQ(extract(file), bytes);
  EXPECT_EQ(extract(Compound_file(file).fragmented(3)), bytes);
  EXPECT_EQ(extract(Compound_file(file).fragmented(3).unused_sectors(31000)), bytes)
      << "two DIFAT sectors";
  EXPECT_EQ(extract(Compound_file(file).header(Header_field::difat_sectors, 0)),
            first(bytes, (109 * 128 + 1) * 512))
      << "only the header's 109 sectors";
}

TEST(Compound_file, a_name_is_found_with_blanks_and_in_any_case) {
  const Byte_run bytes = noise(100);
  for (const auto* name : {"Maps", "MAPS", " Maps", "maps\t\r\n "}) {
    EXPECT_EQ(extract(Compound_file().stream("Mapz", noise(9)).stream(name, bytes)), bytes) << name;
  }
  for (const auto* name : {"Map", "Mapss", "M aps", ""}) {
    EXPECT_EQ(extract(Compound_file().stream(name, bytes)), std::nullopt) << name;
  }
  EXPECT_EQ(extract(Compound_file().stream("Maps", bytes).build(), " mAPS "), bytes);
}

TEST(Compound_file, the_first_entry_of_the_name_wins_whatever_it_is) {
  const Byte_run bytes = noise(100);
  const Byte_run empty;
  const Compound_file file = Compound_file().stream("Maps", bytes);
  EXPECT_EQ(extract(Compound_file(file).stream("MAPS", noise(5000, 2))), bytes);
  EXPECT_EQ(extract(Compound_file().unused_entry("Maps").stream("Maps", bytes)), empty);
  EXPECT_EQ(extract(Compound_file().storage("Maps").stream("Maps", bytes)), empty);
  Compound_file many;
  for (int i = 0; i < 50; ++i) many.stream("Decoy " + std::to_string(i), noise(70));
  EXPECT_EQ(extract(many.stream("Maps", bytes).fragmented(5)), bytes);
}

TEST(Compound_file, the_signature_is_not_checked) {
  const Byte_run bytes = noise(100);
  EXPECT_EQ(extract(Compound_file().stream("Maps", bytes).signature("notOLE!!")), bytes);
}

TEST(Compound_file, of_a_damaged_file_the_part_before_the_damage_is_read) {
  constexpr std::size_t size = 9216;
  const Byte_run bytes = noise(size);
  for (const auto& [name, file, kept] : damaged_files(size)) {
    const Byte_run damaged = file.build();
    const std::optional<Byte_run> extracted = extract(damaged);
    if (kept == unspecified) {
      EXPECT_LE(extracted.value_or(Byte_run()).size(), damaged.size()) << name;
    } else if (kept == unreadable) {
      EXPECT_EQ(extracted, std::nullopt) << name;
    } else {
      EXPECT_EQ(extracted, first(bytes, std::min(kept, size))) << name;
    }
  }
  EXPECT_EQ(extract(Byte_run()), std::nullopt);
  EXPECT_EQ(extract(Byte_run(511)), std::nullopt) << "less than a header";
}

// Of 258 sectors the third FAT sector has two. The stream goes on after the first of them.
TEST(Compound_file, the_last_fat_sector_is_read_for_few_entries) {
  const Byte_run bytes = noise(254 * 512);
  const Byte_run file = Compound_file().stream("Maps", bytes).fragmented(2).build();
  ASSERT_EQ(file.size(), (1 + 258) * 512U);
  EXPECT_EQ(extract(file), bytes);
}

TEST(Compound_file, any_truncation_gives_a_prefix_or_nothing) {
  const Byte_run bytes = noise(9000);
  for (const std::uint32_t cutoff : {4096U, 10000U}) {
    const Byte_run whole =
        Compound_file().cutoff(cutoff).stream("Maps", bytes).fragmented(3).build();
    for (std::size_t size = 0; size <= whole.size(); size += 256) {
      const Byte_run extracted = extract(first(whole, size)).value_or(Byte_run());
      ASSERT_LE(extracted.size(), bytes.size()) << size;
      EXPECT_EQ(extracted, first(bytes, extracted.size())) << size;
    }
    EXPECT_EQ(extract(whole), bytes);
  }
}

}  // namespace
}  // namespace mxd::test
