#include "document/mxd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "document/classes.h"
#include "support/compound_builder.h"
#include "support/object_builder.h"
#include "support/temp_file.h"

namespace mxd::test {
namespace {

Byte_run compound(const Bytes& maps_stream) {
  return Compound_file().stream("Maps", maps_stream.data()).build();
}

Bytes maps_stream(const char* map_name) {
  return Bytes().i32(-1).object(Tmxd_map::clsid, 1, 1, Bytes().wide(map_name));
}

std::string saved_xml(const Tmxd_mxd& document) {
  const Temp_file file;
  EXPECT_TRUE(document.save_xml(file.path()));
  return file.text();
}

TEST(Document, loads_saves_and_loads_again) {
  const Temp_file one(compound(maps_stream("one")));
  const Temp_file other(compound(maps_stream("other")), u"two & 'three'.mxd");
  const Temp_file no_document(Bytes().zeros(2000).data());
  Recorded_errors errors;
  Tmxd_mxd document;
  EXPECT_TRUE(document.load(one.path(), errors));
  const std::string first = saved_xml(document);
  EXPECT_TRUE(document.load(one.path(), errors));
  EXPECT_EQ(first, saved_xml(document));
  EXPECT_EQ("one", to_narrow(document.maps[0].name));
  EXPECT_EQ(0xFFFFFFFF, document.int1);

  EXPECT_FALSE(document.load(no_document.path(), errors));
  EXPECT_FALSE(document.load(from_ascii("no such file.mxd"), errors));
  EXPECT_EQ(
      "<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n\n<mxd_mxd>\n<filename/>\n"
      "<int1>0</int1>\n<maps/>\n</mxd_mxd>",
      saved_xml(document));

  EXPECT_TRUE(document.load(other.path(), errors));
  const std::string xml = saved_xml(document);
  EXPECT_NE(xml.npos, xml.find("two &amp; &apos;three&apos;.mxd</filename>\n<int1>-1</int1>\n"
                               "<maps>\n<map_1>\n<mxd_map>\n"));
  EXPECT_EQ(document.dump(0, 2), dump_of(document.maps[0]));
  EXPECT_TRUE(errors.lines.empty());
}

TEST(Document, needs_four_bytes_of_its_stream) {
  Recorded_errors errors;
  Tmxd_mxd document;
  const Temp_file short_stream(compound(Bytes().zeros(3)));
  EXPECT_FALSE(document.load(short_stream.path(), errors));
  const Temp_file bare(compound(Bytes().i32(7)));
  EXPECT_TRUE(document.load(bare.path(), errors));
  EXPECT_EQ(7U, document.int1);
  EXPECT_TRUE(document.maps.empty());
}

// A class that is in no list has an id that no search and no fuzzer knows.
TEST(Classes, are_all_in_a_list) {
  const auto ids = class_ids_of<Join<Searched_classes, Expected_classes>>();
  const std::regex definition("Class_id clsid\\{\"([^\"]+)");
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(VQK_SOURCE_DIR "/src")) {
    if (entry.path().extension() != ".h") continue;
    std::ifstream file(entry.path());
    const std::string code(std::istreambuf_iterator<char>(file), {});
    for (std::sregex_iterator match(code.begin(), code.end(), definition), end; match != end;
         ++match, ++count) {
      EXPECT_EQ(std::ranges::count(ids, guid_from_text((*match)[1].str())), 1) << match->str();
    }
  }
  EXPECT_EQ(count, ids.size());
}

}  // namespace
}  // namespace mxd::test
