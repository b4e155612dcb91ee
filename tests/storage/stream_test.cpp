#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "storage/file_stream.h"
#include "storage/memory_stream.h"
#include "storage/platform.h"
#include "support/temp_file.h"

namespace mxd {
namespace {

using test::Temp_file;

const Byte_run ten_bytes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

bool opens(const Wide_string& path, std::string_view mode) {
  Tmxd_stream_f stream;
  return stream.open(path, from_ascii(mode));
}

TEST(Memory_stream, seeks_and_reads_inside_its_bytes_only) {
  Tmxd_stream_m stream;
  ASSERT_TRUE(stream.write(ten_bytes.data(), 1, 10));
  EXPECT_TRUE(stream.seek(10));
  EXPECT_FALSE(stream.seek(11));
  EXPECT_EQ(stream.tell(), 10U);
  ASSERT_TRUE(stream.seek(8));
  std::array<std::uint8_t, 4> buffer = {42, 42, 42, 42};
  EXPECT_FALSE(stream.read(buffer.data(), 4, 1));
  EXPECT_FALSE(stream.read(buffer.data(), std::uint64_t{1} << 63, 2)) << "the product wraps to 0";
  EXPECT_EQ(buffer[0], 42);
  EXPECT_EQ(stream.tell(), 8U);
  EXPECT_TRUE(stream.read(buffer.data(), 1, 0));
  EXPECT_TRUE(stream.read(buffer.data(), 2, 1));
  EXPECT_EQ(buffer[1], 9);
}

TEST(Memory_stream, writes_only_what_extends_it) {
  Tmxd_stream_m stream;
  EXPECT_TRUE(stream.write(ten_bytes.data(), 5, 1));
  EXPECT_EQ(stream.get_size(), 5U);
  EXPECT_EQ(stream.tell(), 5U);
  EXPECT_FALSE(stream.write(ten_bytes.data(), 0, 1));
  ASSERT_TRUE(stream.seek(0));
  EXPECT_FALSE(stream.write(ten_bytes.data(), 3, 1));
  EXPECT_FALSE(stream.write(ten_bytes.data(), 5, 1));
  EXPECT_TRUE(stream.write(ten_bytes.data(), 6, 1)) << "one byte of it is new";
  EXPECT_EQ(stream.get_size(), 6U);
}

TEST(Memory_stream, keeps_its_position_when_it_is_resized) {
  Tmxd_stream_m stream;
  ASSERT_TRUE(stream.write(ten_bytes.data(), 1, 10));
  EXPECT_TRUE(stream.set_size(4));
  EXPECT_EQ(stream.tell(), 10U);
  std::uint8_t byte = 42;
  EXPECT_FALSE(stream.read(&byte, 1, 1));
  EXPECT_TRUE(stream.set_size(12));
  EXPECT_TRUE(stream.read(&byte, 1, 1));
  EXPECT_EQ(byte, 0) << "new bytes are zero, even if the stream was longer before";
  EXPECT_FALSE(stream.set_size(~std::uint64_t{0}));
  EXPECT_EQ(stream.get_size(), 12U);
}

TEST(File_stream, reads_whole_elements_and_reports_missing_ones) {
  const Temp_file file(ten_bytes);
  Tmxd_stream_f stream;
  ASSERT_TRUE(stream.open(file.path(), from_ascii("rb")));
  EXPECT_EQ(stream.get_size(), 10U);
  EXPECT_EQ(stream.tell(), 0U);
  std::array<std::uint8_t, 16> buffer{};

  ASSERT_TRUE(stream.seek(6));
  EXPECT_TRUE(stream.read(buffer.data(), 4, 2)) << "one element is there";
  EXPECT_TRUE(stream.failed());
  EXPECT_EQ(buffer[3], 9);
  EXPECT_EQ(stream.tell(), 10U);
  EXPECT_FALSE(stream.read(buffer.data(), 4, 0));
  EXPECT_TRUE(stream.failed()) << "neither tell() nor a complete read resets it";
  EXPECT_EQ(stream.get_size(), 10U);
  EXPECT_FALSE(stream.failed());

  ASSERT_TRUE(stream.seek(7));
  EXPECT_FALSE(stream.read(buffer.data(), 4, 1)) << "no whole element is there";
  EXPECT_TRUE(stream.failed());
  ASSERT_TRUE(stream.seek(0));
  EXPECT_FALSE(stream.failed());
  EXPECT_FALSE(stream.read(buffer.data(), 0, 5));
  EXPECT_FALSE(stream.failed());
  EXPECT_FALSE(stream.read(buffer.data(), 4, 0));
  EXPECT_FALSE(stream.failed());
  EXPECT_TRUE(stream.read(buffer.data(), 5, 2));
  EXPECT_FALSE(stream.failed());
  EXPECT_TRUE(std::equal(ten_bytes.begin(), ten_bytes.end(), buffer.begin()));
  EXPECT_FALSE(stream.seek(std::uint64_t{1} << 63)) << "negative for the system";
  EXPECT_EQ(stream.tell(), 10U);
  EXPECT_TRUE(stream.write(buffer.data(), 1, 1)) << "true after an I/O error";
}

TEST(File_stream, modes_choose_access_and_creation) {
  struct Case {
    std::string_view mode;
    bool creates;
    bool writes;
    std::uint64_t position;
  };
  const Case cases[] = {
      {"rb", false, false, 0}, {"r+", false, true, 0},  {"rb+", false, true, 0},
      {"a", false, true, 10},  {"ab", false, true, 10}, {"a+", false, true, 10},
      {"w", true, true, 0},    {"wb", true, true, 0},
  };
  for (const auto& [mode, creates, writes, position] : cases) {
    SCOPED_TRACE(mode);
    const Temp_file file(ten_bytes);
    EXPECT_EQ(opens(file.beside(u"missing"), mode), creates);
    Tmxd_stream_f stream;
    ASSERT_TRUE(stream.open(file.path(), from_ascii(mode)));
    EXPECT_EQ(stream.tell(), position);
    EXPECT_EQ(stream.get_size(), creates ? 0 : 10);
    EXPECT_TRUE(stream.write("x", 1, 1)) << "true after an error as well";
    Byte_run expected = creates ? Byte_run{} : ten_bytes;
    if (writes) {
      expected.resize(std::max<std::size_t>(expected.size(), position + 1));
      expected[position] = 'x';
    }
    EXPECT_TRUE(stream.close());
    EXPECT_EQ(file.contents(), expected);
  }
}

TEST(File_stream, appending_only_chooses_where_writing_starts) {
  const Temp_file file(ten_bytes);
  Tmxd_stream_f stream;
  ASSERT_TRUE(stream.open(file.path(), from_ascii("a")));
  EXPECT_TRUE(stream.seek(0));
  EXPECT_TRUE(stream.write("xy", 1, 2));
  EXPECT_TRUE(stream.set_size(3));
  EXPECT_EQ(stream.tell(), 3U);
  EXPECT_TRUE(stream.close());
  EXPECT_EQ(file.contents(), (Byte_run{'x', 'y', 2}));
}

TEST(File_stream, close_empties_the_line_end) {
  const Temp_file file;
  Tmxd_stream_f stream;
  EXPECT_EQ(stream.line_end(), from_ascii("\r\n"));
  ASSERT_TRUE(stream.open(file.path(), from_ascii("rb")));
  EXPECT_TRUE(stream.close());
  EXPECT_EQ(stream.line_end(), Wide_string());
  EXPECT_FALSE(stream.close());
  EXPECT_EQ(stream.get_size(), 0U);
  EXPECT_FALSE(stream.seek(0));
}

TEST(File_stream, opens_files_only) {
  const Temp_file file;
  EXPECT_FALSE(opens(file.folder(), "rb"));
  EXPECT_FALSE(opens(file.folder(), "r+"));
  EXPECT_FALSE(opens({}, "rb"));
  EXPECT_FALSE(opens(Wide_string{'a', 0xD800}, "w"));
}

TEST(File_stream, opens_names_of_any_script) {
  for (const auto* name :
       {u"\u041A\u0430\u0440\u0442\u0430 1.mxd", u"\u5730\u56F3.mxd", u"\U0001F5FA \u00FC.mxd"}) {
    const Temp_file file(ten_bytes, name);
    EXPECT_TRUE(opens(file.path(), "rb"));
  }
}

TEST(File_stream, shares_reading_but_not_writing) {
  const Temp_file file(ten_bytes);
  Tmxd_stream_f reader;
  ASSERT_TRUE(reader.open(file.path(), from_ascii("rb")));
  EXPECT_TRUE(opens(file.path(), "rb"));
  EXPECT_FALSE(opens(file.path(), "r+"));
  EXPECT_FALSE(opens(file.path(), "w"));
  EXPECT_EQ(file.contents(), ten_bytes) << "a locked file is not truncated";
}

TEST(File_stream, tries_twenty_times_while_the_file_is_locked) {
  const Temp_file file(ten_bytes);
  Tmxd_stream_f writer;
  ASSERT_TRUE(writer.open(file.path(), from_ascii("r+")));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(opens(file.path(), "rb"));
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(19));
  writer.close();
  EXPECT_TRUE(opens(file.path(), "rb"));
}

TEST(File_stream, opens_when_the_writer_closes_the_file_in_time) {
  const Temp_file file(ten_bytes);
  bool opened = false;
  // On a busy machine the writer may sleep too long, but not every time.
  for (int i = 0; i < 20 && !opened; ++i) {
    Tmxd_stream_f writer;
    ASSERT_TRUE(writer.open(file.path(), from_ascii("r+")));
    std::atomic<bool> trying = false;
    std::thread other([&] {
      trying.wait(false);
      std::this_thread::sleep_for(std::chrono::milliseconds(3));
      writer.close();
    });
    trying = true;
    trying.notify_one();
    opened = opens(file.path(), "rb");
    other.join();
  }
  EXPECT_TRUE(opened);
}

TEST(Text_output, replaces_the_file_or_fails) {
  const Temp_file file(ten_bytes, u"\u041A\u0430\u0440\u0442\u0430 \u5730.xml");
  std::FILE* out = open_text_output(file.path());
  ASSERT_NE(out, nullptr);
  std::fputs("text", out);
  std::fclose(out);
  EXPECT_EQ(file.contents(), (Byte_run{'t', 'e', 'x', 't'}));
  EXPECT_EQ(open_text_output(file.folder()), nullptr);
  EXPECT_EQ(open_text_output({}), nullptr);
}

}  // namespace
}  // namespace mxd
