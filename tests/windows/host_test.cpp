// What only a host on Windows meets: its paths, files that other processes hold, its output.
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <vector>

#include "document/map.h"
#include "support/compound_builder.h"
#include "support/host_document.h"
#include "support/object_builder.h"
#include "support/sample_document.h"
#include "support/temp_file.h"
#include "windows/child.h"

namespace mxd::test {
namespace {

namespace fs = std::filesystem;

// Of the two maps the first breaks off in its name.
Byte_run damaged_document() {
  Bytes stream;
  stream.i32(2).object(Tmxd_map::clsid, 12, 1, Bytes().i32(-1));
  stream.object(Tmxd_map::clsid, 13, 1, Bytes().wide("whole"));
  return Compound_file().stream("Maps", stream.data()).build();
}

std::string bytes_of(const std::wstring& path) {
  std::ifstream file(fs::path(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Host, paths_of_any_script_are_loaded_and_saved) {
  for (const char16_t* name :
       {u"\u041A\u0430\u0440\u0442\u0430.mxd", u"\u5730\u56F3.mxd", u"a map \u041A \u5730.mxd"}) {
    const Temp_file file(sample_document(), name);
    const std::wstring xml = file.path() + L".xml";
    Host_document document;
    EXPECT_TRUE(document.load(file.path()));
    EXPECT_EQ(3, document.maps());
    EXPECT_TRUE(document.save(xml));
    EXPECT_NE(std::string::npos,
              bytes_of(xml).find(to_narrow(file.path().substr(file.folder().size())) +
                                 "</filename>\r\n"));
  }
}

TEST(Host, xml_has_the_line_ends_of_the_system) {
  const Temp_file file(sample_document());
  Host_document document;
  ASSERT_TRUE(document.load(file.path()) && document.save(file.beside(u"out.xml")));
  const std::string xml = bytes_of(file.beside(u"out.xml"));
  EXPECT_EQ(0U, xml.find("<?xml version = \"1.0\" encoding = \"windows-1251\"?>\r\n\r\n<mxd_mxd>"));
  for (std::size_t i = xml.find('\n'); i != xml.npos; i = xml.find('\n', i + 1)) {
    EXPECT_EQ('\r', xml[i - 1]);
  }
}

TEST(Host, long_paths_are_loaded_and_saved_behind_their_prefix) {
  const Temp_file file(sample_document());
  std::wstring path = L"\\\\?\\" + fs::path(file.folder()).make_preferred().wstring();
  std::vector<std::wstring> made;
  for (const wchar_t letter : {L'a', L'b', L'c'}) {
    path += L"\\\u041A" + std::wstring(99, letter);
    ASSERT_TRUE(fs::create_directory(path));
    made.push_back(path);
  }
  path += L"\\map.mxd";
  ASSERT_GT(path.size(), 300U);
  fs::copy_file(file.path(), path);
  Host_document document;
  EXPECT_TRUE(document.load(path));
  EXPECT_EQ(3, document.maps());
  EXPECT_TRUE(document.save(path + L".xml"));
  EXPECT_NE(std::string::npos, bytes_of(path + L".xml").find("</mxd_mxd>"));

  // Without the prefix, as the folder is removed, such names are out of reach.
  made.insert(made.end(), {path, path + L".xml"});
  for (auto each = made.rbegin(); each != made.rend(); ++each) fs::remove(*each);
}

TEST(Host, a_file_that_another_process_writes_is_loaded_once_released) {
  const Temp_file file(sample_document());
  Host_document document;
  Child writer(Task::hold, file.path(), Child_streams::piped);
  ASSERT_EQ("held\r\n", writer.read_line());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(document.load(file.path()));
  const auto tried = std::chrono::steady_clock::now() - start;
  EXPECT_GE(tried, std::chrono::milliseconds(19)) << "twenty tries, a millisecond each";
  EXPECT_LE(tried, std::chrono::seconds(10));
  writer.finish();
  EXPECT_TRUE(document.load(file.path()));
}

TEST(Host, failed_objects_are_told_on_the_standard_output) {
  const Temp_file file(damaged_document());
  Child host(Task::load, file.path(), Child_streams::piped);
  EXPECT_EQ("ERROR IN 12 mxd_map  4\r\n", host.read_line());
  EXPECT_EQ("", host.read_line());
  EXPECT_EQ(child_loaded + child_has_output, host.finish());
}

TEST(Host, failed_objects_do_no_harm_without_a_standard_output) {
  const Temp_file file(damaged_document());
  EXPECT_EQ(child_loaded, Child(Task::load, file.path(), Child_streams::none).finish());
}

}  // namespace
}  // namespace mxd::test

int main(int argc, char** argv) {
  const mxd::test::Task task = mxd::test::child_task();
  if (task != mxd::test::Task::none) return mxd::test::run_as_child(task);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
