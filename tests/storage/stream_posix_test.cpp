// Files that Windows does not have: pipes, devices, and names that are bytes of no encoding.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "storage/file_stream.h"
#include "storage/platform.h"
#include "storage/unicode.h"
#include "support/temp_file.h"

namespace mxd {
namespace {

using test::Temp_file;

Wide_string new_pipe(const Temp_file& file) {
  const Wide_string path = file.beside(u"pipe");
  EXPECT_EQ(::mkfifo(std::filesystem::path(path).c_str(), 0600), 0);
  return path;
}

TEST(File_stream, opens_neither_pipes_nor_devices_and_does_not_wait_for_them) {
  const Temp_file file;
  for (const Wide_string& path : {new_pipe(file), from_ascii("/dev/zero")}) {
    EXPECT_FALSE(Tmxd_stream_f().open(path, from_ascii("rb"))) << to_narrow(path);
    EXPECT_FALSE(Tmxd_stream_f().open(path, from_ascii("r+"))) << to_narrow(path);
  }
}

TEST(File_stream, opens_names_that_are_not_utf_8) {
  const Temp_file file;
  const std::string folder = std::filesystem::path(file.folder()).string() + '/';
  for (const char* name :
       {"\xFF\x80", "a\xC0\xAF", "\xED\xA0\xBD\xED\xB2\x80", "\xE2\x82", "\xF4\x90\x80\x80",
        "\xE0\x80\xAF", "\xF0\x9F\x92\x80\xF0\x8F\xBF\xBF", "\xD0\x9A\x9A\xF0\x9F\x97\xBA"}) {
    std::ofstream(folder + name) << name;
    EXPECT_TRUE(Tmxd_stream_f().open(path_from_bytes(folder + name), from_ascii("rb")));
  }
}

TEST(Text_output, to_a_pipe_waits_for_no_reader_but_for_a_slow_one) {
  const Temp_file file;
  const Wide_string path = new_pipe(file);
  EXPECT_EQ(open_text_output(path), nullptr) << "no reader";
  std::size_t received = 0;
  std::thread reader([&] {
    std::ifstream in(std::filesystem::path{path}, std::ios::binary);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    received = std::string(std::istreambuf_iterator<char>(in), {}).size();
  });
  std::FILE* out = nullptr;
  while (!out) out = open_text_output(path);
  const std::string text(1 << 20, 'x');
  EXPECT_EQ(std::fwrite(text.data(), 1, text.size(), out), text.size());
  EXPECT_EQ(std::fclose(out), 0);
  reader.join();
  EXPECT_EQ(received, text.size());
}

}  // namespace
}  // namespace mxd
