// What is read of a damaged document: everything before a cut, and everything intact.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/classes.h"
#include "storage/compound_file.h"
#include "support/compound_builder.h"
#include "support/document_records.h"
#include "support/temp_file.h"
#include "symbology/color.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

constexpr int layers = 12;

// A layer that has everything, so that none of its searches goes past its end.
Bytes whole_layer(int number) {
  const Bytes color =
      object<Tmxd_rgb_color>(number + 9, 1, Bytes().counting(3).f64s({50, 0, 0}).u8(0).u8(0));
  const Bytes line =
      Bytes().object(simple_line_id, number + 8, 1, Bytes(color).f64(1.5).i32(2).trailer());
  return feature_layer(number, simple_renderer(number + 3, line)
                                   .zeros(156)
                                   .wide("N")
                                   .f64s({2, 1})
                                   .add(geographic(number + 7, "GEOGCS")));
}

std::vector<std::string> layer_dumps(const Byte_run& maps) {
  Decoder decoder(Bytes().raw({reinterpret_cast<const char*>(maps.data()), maps.size()}));
  std::uint32_t count = 0;
  Tmxd_maps found;
  if (!read_number(decoder.stream, count) || !read_all_found(found, decoder.stream, -1, -1))
    return {};
  std::vector<std::string> dumps;
  for (const Tmxd_map* map : found) {
    for (const Tmxd_layer* layer : map->layers) dumps.push_back(dump_of(*layer));
  }
  return dumps;
}

Bytes many_layers(std::vector<std::size_t>& ends) {
  const std::size_t lead = in_map({}).size();
  Bytes content;
  for (int i = 0; i < layers; ++i) {
    content.add(whole_layer(100 * (i + 1)));
    ends.push_back(lead + content.size());
  }
  return in_map(content);
}

TEST(Salvage, a_document_cut_anywhere_keeps_the_layers_before_the_cut) {
  std::vector<std::size_t> ends;
  const Byte_run stream = many_layers(ends).data();
  const std::vector<std::string> whole = layer_dumps(stream);
  ASSERT_EQ(whole.size(), ends.size());
  const Byte_run file = Compound_file().stream("Maps", stream).tables_first().build();
  int cuts = 0;
  for (std::size_t size = 512; size <= file.size(); size += 512) {
    Tmxd_stream_m out;
    const Temp_file cut({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)});
    if (!read_named_stream(cut.path(), from_ascii("Maps"), out)) continue;
    ++cuts;
    const std::vector<std::string> left = layer_dumps({out.bytes().begin(), out.bytes().end()});
    for (std::size_t i = 0; i < ends.size() && ends[i] <= out.get_size(); ++i) {
      ASSERT_LT(i, left.size()) << size;
      EXPECT_EQ(left[i], whole[i]) << size;
    }
  }
  // A cut after the header, the FAT and the directory always leaves a document.
  EXPECT_EQ(static_cast<std::size_t>(cuts), file.size() / 512 - 2);
}

TEST(Salvage, a_broken_byte_costs_no_other_layer) {
  std::vector<std::size_t> ends;
  const Byte_run stream = many_layers(ends).data();
  const std::vector<std::string> whole = layer_dumps(stream);
  constexpr std::size_t broken = 5;
  for (std::size_t place = ends[broken - 1]; place < ends[broken]; ++place) {
    for (const std::uint8_t value : {std::uint8_t{0}, std::uint8_t{0xFE}}) {
      Byte_run bytes = stream;
      bytes[place] = value;
      std::vector<std::string> left = layer_dumps(bytes);
      ASSERT_GE(left.size() + 1, whole.size()) << place;
      for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i == broken) continue;
        EXPECT_NE(std::find(left.begin(), left.end(), whole[i]), left.end())
            << "byte " << place << " layer " << i;
      }
    }
  }
}

}  // namespace
}  // namespace mxd::fuzz
