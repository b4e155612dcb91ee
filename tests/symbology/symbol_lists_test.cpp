#include "support/class_table.h"
#include "symbology/line_symbols.h"

namespace mxd::test {
namespace {

// A slot passes over the picture, and does not look past its limit.
TEST(Symbol_slot, search) {
  const auto end = static_cast<std::int64_t>(record("picture_marker_symbol", 1).size());
  for (const std::int64_t limit : {std::int64_t{-1}, end + 16, end + 15}) {
    Decoder decoder(Packed(record("picture_marker_symbol", 1), record("simple_line_symbol", 2)));
    Tmxd_symbol_slot slot;
    static_cast<void>(slot.read(decoder.stream, limit));
    EXPECT_EQ(slot.get() != nullptr, limit != end + 15);
  }
}

template <class List>
std::string layers_of(const List& list) {
  std::string result;
  for (const auto& layer : list) {
    result += std::to_string(layer->enabled) + std::to_string(layer->locked) +
              to_narrow(layer->tag) + " ";
  }
  return result;
}

template <class T, class List>
void expect_layers(const char* name, List T::*list, int version, bool tagged) {
  SCOPED_TRACE(testing::Message() << name << " " << version);
  const Bytes whole = Bytes().object(T::clsid, 5, version, row_named(name).fields(5, 13));
  Decoder decoder(whole);
  T object;
  ASSERT_TRUE(read_object(object, decoder.stream, -1, -1));
  EXPECT_EQ(whole.size() - decoder.stream.tell(), tagged ? 0 : Packed("under", "over").size());
  EXPECT_EQ(layers_of(object.*list), tagged ? "01under 10over " : "01 10 ");
}

TEST(Symbol_lists, have_tags_from_a_version_on) {
  for (const int version : {1, 2, 3}) {
    expect_layers("multilayer_marker_symbol", &Tmxd_multilayer_marker_symbol::marker_symbols,
                  version, version >= 3);
    expect_layers("multilayer_line_symbol", &Tmxd_multilayer_line_symbol::line_symbols, version,
                  version >= 2);
    expect_layers("multilayer_fill_symbol", &Tmxd_multilayer_fill_symbol::fill_symbols, version,
                  version >= 2);
  }
}

TEST(Symbol_lists, keep_the_layers_before_a_failure) {
  const Bytes two = Packed(record("simple_line_symbol", 1), record("hash_line_symbol", 2));
  struct Case {
    const char* what;
    Bytes bytes;
    bool ok;
    const char* layers;
  };
  const Case cases[] = {
      {"none", Packed(0, two), true, ""},
      {"negative", Packed(-1, two), true, ""},
      {"more than stand there", Packed(0x7FFFFFFF, two), false, "10 10 "},
      {"the second one fails",
       Packed(2, record("simple_line_symbol", 1), record("hash_line_symbol", 2, 12)), false, "10 "},
      {"one of another kind",
       Packed(2, record("simple_line_symbol", 1), record("line_template", 3)), false, "10 "},
      {"cut in the first flags", Packed(2, two, 0), false, "00 10 "},
      {"cut in the second flags", Packed(2, two, 0, 0, 1), false, "01 00 "},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Decoder decoder(c.bytes);
    Tmxd_line_symbols list;
    list.append(std::make_unique<Tmxd_simple_line_symbol>());
    EXPECT_EQ(list.read(decoder.stream, -1), c.ok);
    EXPECT_EQ(layers_of(list), c.layers);
  }
}

// A tag that breaks off is none: the layer keeps the one it had.
TEST(Layer_flags, a_cut_tag_is_left_out) {
  const Bytes layer =
      Bytes().object(Tmxd_simple_line_symbol::clsid, 2, 1, Bytes().f64(1).i32(0).trailer());
  Bytes fields = Bytes().trailer().i32(1).add(layer).i32(1).i32(0);
  fields.i32(8).u16('A').u16('B');
  Decoder decoder(Bytes().object(Tmxd_multilayer_line_symbol::clsid, 1, 2, fields));
  Tmxd_multilayer_line_symbol symbol;
  EXPECT_FALSE(read_object(symbol, decoder.stream, 0, -1));
  ASSERT_EQ(1U, symbol.line_symbols.size());
  EXPECT_TRUE(symbol.line_symbols[0].tag.empty());
}

}  // namespace
}  // namespace mxd::test
