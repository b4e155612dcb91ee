#include "document/mxd.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(Document, no_file_that_breaks_off_does_harm_on_disk_or_in_memory) {
  const Byte_run whole = compound(maps_stream("one"));
  for (std::size_t length = 0; length <= whole.size(); length += 64) {
    const auto part = std::span<const std::uint8_t>(whole).first(length);
    const Temp_file cut(part);
    Tmxd_stream_m memory;
    ASSERT_TRUE(memory.set_size(length));
    std::ranges::copy(part, memory.bytes().begin());
    Recorded_errors errors;
    Tmxd_mxd from_disk, from_memory;
    EXPECT_EQ(length == whole.size(), from_disk.load(cut.path(), errors)) << length;
    EXPECT_EQ(length == whole.size(), from_memory.load(memory, cut.path(), errors)) << length;
    EXPECT_EQ(from_disk.filename, from_memory.filename);
    EXPECT_EQ(from_disk.dump(0, 2), from_memory.dump(0, 2));
  }
}

}  // namespace
}  // namespace mxd::test
