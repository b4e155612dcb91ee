#include "support/class_table.h"
namespace mxd::test {
namespace {

// A fill that is whole, or lacks a slot, and what it says of its copy. All is copied all the same.
TEST(Symbol_copies, say_whether_the_slots_were_copied) {
  const Bytes line = record("simple_line_symbol", 1);
  const Bytes hollow = Packed(record("simple_line_symbol", 2), trailer(13), -1);
  struct Case {
    const char* name;
    Bytes fields;
    bool result;
  };
  const Case cases[] = {
      {"simple_fill_symbol", Packed(line, record("rgb_color", 3), trailer(13), 4), true},
      {"simple_fill_symbol", Packed(record("rgb_color", 3), trailer(13), 4), false},
      {"simple_fill_symbol", Packed(line, trailer(13), 4), false},
      {"line_fill_symbol",
       Packed(1.0, 2.0, line, reference("simple_line_symbol", 1), 4.0, 5.0, 6.0, trailer(13)),
       true},
      {"line_fill_symbol", Packed(1.0, 2.0, line, 4.0, 5.0, 6.0, trailer(13)), false},
      {"simple_line_decoration_element", Packed(run(5), line, 1, 2.0), true},
      {"simple_line_decoration_element", Packed(run(5), 1, 2.0), false},
      {"simple_line_decoration_element",
       Packed(run(5), object<Tmxd_simple_fill_symbol>(6, 1, hollow), 0), false},
      {"line_decoration",
       Packed(2, record("simple_line_decoration_element", 1),
              record("simple_line_decoration_element", 2)),
       false},
      {"marker_fill_symbol", Packed(1, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, trailer(13), 7.0), true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Class_row& row = row_named(c.name);
    Decoder decoder(Bytes().object(row.class_id, 5, 1, c.fields));
    const auto source = row.make();
    ASSERT_TRUE(read_object(*source, decoder.stream, -1, -1));
    const auto copy = row.make();
    EXPECT_EQ(copy->copy_from(*source), c.result);
    EXPECT_EQ(fields_of(*copy), fields_of(*source));
  }
}

// A multilayer line of a marker line of a multilayer marker; then a reference to the inmost symbol.
TEST(Symbol_copies, reach_through_nested_symbols) {
  const Bytes trail = Packed(byte(9), 1.5, record("multilayer_marker_symbol", 3),
                             record("line_template", 4), run(16), trailer(13), run(25));
  const Bytes nested =
      Packed(trailer(13), 1, object<Tmxd_marker_line_symbol>(2, 1, trail), 0, 1, "tag");
  Decoder decoder(Packed(object<Tmxd_multilayer_line_symbol>(1, 2, nested),
                         reference("multilayer_line_symbol", 1), reference("marker_line_symbol", 2),
                         reference("picture_marker_symbol", 33)));
  Tmxd_multilayer_line_symbol lines, again;
  Tmxd_marker_line_symbol layer;
  Tmxd_picture_marker_symbol picture;
  for (Tmxd_obj* object : {static_cast<Tmxd_obj*>(&lines), static_cast<Tmxd_obj*>(&again),
                           static_cast<Tmxd_obj*>(&layer), static_cast<Tmxd_obj*>(&picture)}) {
    ASSERT_TRUE(read_object(*object, decoder.stream, -1, -1));
  }
  EXPECT_NE(dump_of(lines).find("    mxd_multilayer_marker_symbol = {\n      number = 3\n"),
            std::string::npos);
  EXPECT_EQ(fields_of(again), fields_of(lines));
  EXPECT_EQ(fields_of(layer), fields_of(lines.line_symbols[0]));
  EXPECT_EQ(to_narrow(layer.tag), "tag");
  EXPECT_EQ(layer.enabled, 0);
  EXPECT_EQ(bytes_to_hex(picture.bytes1, ""), bytes_to_hex(run(65).data(), ""));
}

TEST(Symbol_copies, pay_for_the_tag_that_the_layer_was_given) {
  const Bytes tag = Bytes().wide(std::string(4000, 'x'));
  const Bytes layers = Packed(trailer(13), 1, record("simple_line_symbol", 2), 1, 0, tag);
  Decoder decoder(
      object<Tmxd_multilayer_line_symbol>(1, 2, layers).add(reference("simple_line_symbol", 2)));
  Tmxd_multilayer_line_symbol lines;
  ASSERT_TRUE(read_object(lines, decoder.stream, -1, -1));
  const std::uint64_t before = decoder.stream.load().budget().used();
  Tmxd_simple_line_symbol copy;
  ASSERT_TRUE(read_object(copy, decoder.stream, -1, -1));
  EXPECT_EQ(copy.tag.size(), 4000U);
  EXPECT_GT(decoder.stream.load().budget().used() - before, 8000U);
}

}  // namespace
}  // namespace mxd::test
