#include "rendering/property_page.h"
#include "support/decoded.h"
#include "support/document_records.h"

namespace mxd::test {
namespace {

Bytes layer_of(const Bytes& drawing) {
  return feature_layer(49, Bytes(drawing).add(geographic(52, "GEOGCS[]")));
}

TEST(Feature_layer, drawing) {
  const Bytes class_breaks = class_breaks_renderer(60, Bytes().i32(0));
  const Bytes scales = Bytes().wide("str1").f64(5000).f64(100);
  const Bytes unique_page = Bytes().zeros(7).guid(Tmxd_unique_value_property_page::clsid.guid);
  const Bytes color_page = Bytes().zeros(7).guid(Tmxd_graduated_color_property_page::clsid.guid);
  std::vector<Decode_case> cases = {
      {"simple", simple_renderer(60).counting(156).add(scales)},
      {"unique values",
       unique_value_renderer(0, 3, Main::absent, Packed(0)).add(unique_page).add(scales)},
      {"class breaks", Bytes().add(class_breaks).add(color_page).add(scales)},
      {"the page of the other kind", Bytes().add(class_breaks).add(unique_page).add(scales)},
      {"no page", Bytes().add(class_breaks).add(scales)},
      {"repeated, of the kind that has a block",
       Bytes().zeros(3).reference(Tmxd_simple_renderer::clsid, 50).counting(156).add(scales)},
      {"none", scales},
      {"fails in its legend", simple_renderer(60).prefix(48).i32(-1).add(scales)},
      {"fails in itself", class_breaks.prefix(30).i32(-1).add(color_page).add(scales)},
      {"misread string after the block", simple_renderer(60).counting(156).i32(-1)},
  };
  for (Decode_case& c : cases) c.bytes = layer_of(c.bytes);
  expect_decoded<Tmxd_feature_layer>("document", "drawings", cases);
  Decoder decoder(layer_of(scales));
  Tmxd_feature_layer layer;
  EXPECT_TRUE(read_object(layer, decoder.stream, -1, -1));
  EXPECT_NE(xml_of(layer).find("<renderer>true</renderer>\n<str1/>"), std::string::npos);
}

// Neither the search for the renderer nor that for its page leaves the layer's stretch.
TEST(Feature_layer, drawing_stays_before_the_limit) {
  const Bytes mine = layer_of(class_breaks_renderer(60, Bytes().i32(0)).wide("").f64(1).f64(2));
  const auto limit = static_cast<std::int64_t>(mine.size());
  Decoder decoder(Bytes().add(mine).guid(Tmxd_graduated_color_property_page::clsid.guid).zeros(99));
  Tmxd_feature_layer layer;
  EXPECT_TRUE(read_object(layer, decoder.stream, -1, limit));
  EXPECT_LE(decoder.stream.tell(), mine.size());
  EXPECT_TRUE(layer.coordinate_system.get());
}

// A layer is kept wherever its record ends after its workspace.
TEST(Feature_layer, prefixes) {
  const Bytes whole = layer_of(simple_renderer(60).counting(156).wide("s").f64(1).f64(2));
  const std::size_t needed = layer_of(Bytes()).size() - (22 + 12);
  expect_prefixes_fail<Tmxd_feature_layer>(whole, whole.size() - needed);
}

}  // namespace
}  // namespace mxd::test
