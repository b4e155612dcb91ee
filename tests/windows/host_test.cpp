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

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

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

TEST(Host, a_file_that_is_open_for_writing_is_loaded_once_released) {
  const Temp_file file(sample_document());
  Host_document document;
  const HANDLE writer = CreateFileW(file.path().c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, writer);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(document.load(file.path()));
  const auto tried = std::chrono::steady_clock::now() - start;
  EXPECT_GE(tried, std::chrono::milliseconds(19)) << "twenty tries, a millisecond each";
  EXPECT_LE(tried, std::chrono::seconds(10));
  CloseHandle(writer);
  EXPECT_TRUE(document.load(file.path()));
}

constexpr wchar_t path_variable[] = L"VQK_CHILD_PATH";

// What a child process ends with, a sum of these.
constexpr int child_loaded = 2;
constexpr int child_has_output = 4;

int load_as_child(const wchar_t* path) {
  const int loaded = Host_document().load(path) ? child_loaded : 0;
  const DWORD output = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE));
  return loaded + (output == FILE_TYPE_UNKNOWN ? 0 : child_has_output);
}

// Runs this program again as another process, which loads the file. Returns its exit code.
int load_in_child(const std::wstring& path, bool has_output, std::string& written) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  HANDLE from_child = nullptr;
  HANDLE to_parent = nullptr;
  EXPECT_NE(0, CreatePipe(&from_child, &to_parent, &inherited, 0));
  SetHandleInformation(from_child, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = has_output ? STARTF_USESTDHANDLES : 0;
  startup.hStdOutput = startup.hStdError = to_parent;
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  PROCESS_INFORMATION process = {};
  SetEnvironmentVariableW(path_variable, path.c_str());
  EXPECT_NE(
      0, CreateProcessW(program, nullptr, nullptr, nullptr, has_output,
                        has_output ? 0 : DETACHED_PROCESS, nullptr, nullptr, &startup, &process));
  SetEnvironmentVariableW(path_variable, nullptr);
  CloseHandle(to_parent);
  char next = 0;
  DWORD size = 0;
  while (ReadFile(from_child, &next, 1, &size, nullptr) != 0 && size == 1) written += next;
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  for (const HANDLE handle : {from_child, process.hThread, process.hProcess}) CloseHandle(handle);
  return static_cast<int>(code);
}

TEST(Host, failed_objects_are_written_to_the_standard_output) {
  const Temp_file file(damaged_document());
  std::string written;
  EXPECT_EQ(child_loaded + child_has_output, load_in_child(file.path(), true, written));
  EXPECT_EQ("ERROR IN 12 mxd_map  4\r\n", written);
}

TEST(Host, failed_objects_do_no_harm_without_a_standard_output) {
  const Temp_file file(damaged_document());
  std::string written;
  EXPECT_EQ(child_loaded, load_in_child(file.path(), false, written));
}

}  // namespace
}  // namespace mxd::test

int main(int argc, char** argv) {
  const wchar_t* path = _wgetenv(mxd::test::path_variable);
  if (path) return mxd::test::load_as_child(path);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
