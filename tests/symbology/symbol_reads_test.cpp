#include "support/class_table.h"
namespace mxd::test {
namespace {

template <class T>
bool read_as(T& object, int version, const Bytes& fields) {
  Decoder decoder(Bytes().object(T::clsid, 5, version, fields));
  return read_object(object, decoder.stream, -1, -1);
}

Bytes font(int version, int flags, const char* class_id = "0be35203-8f91-11ce-9de3-00aa004bb851") {
  return Packed(Bytes().guid(guid_from_text(class_id)), 1, byte(version), word(204), byte(flags),
                word(700), 10000, byte(5), Bytes().raw("Serif"));
}

TEST(Char_marker, reads_what_its_version_has) {
  const Bytes head = Packed(65, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
  const Bytes mark = Packed(trailer(13), word(65535));
  const Bytes other_mark = Packed(trailer(13), word(65534));
  const Bytes named = Packed("Arial", 7.0, 8.0, byte(9), byte(10), run(4), run(6));
  const Bytes other_class = font(1, 0, "0be35203-8f91-11ce-9de3-00aa004bb852");
  struct Case {
    int version;
    Bytes fields;
    bool ok;
    std::string name, font;
  };
  const Case cases[] = {
      {1, Packed(head, mark), true, "", ""},
      {2, Packed(head, font(1, 0), mark), true, "Serif", "Serif"},
      {3, Packed(head, mark, named), true, "Arial", ""},
      {4, Packed(head, mark, named, font(1, 0)), true, "Arial", "Serif"},
      {5, Packed(head, mark, named, font(1, 0)), true, "Arial", "Serif"},
      {1, Packed(head, other_mark), false, "", ""},
      {5, Packed(head, other_mark, named, font(1, 0)), false, "", ""},
      {2, Packed(head, font(2, 0), mark), false, "", ""},
      {4, Packed(head, mark, named, other_class), false, "Arial", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.version << " " << c.ok);
    Tmxd_char_marker_symbol symbol, copy;
    EXPECT_EQ(read_as(symbol, c.version, c.fields), c.ok);
    copy.copy_from(symbol);
    EXPECT_EQ(copy.unicode, 65);
    EXPECT_EQ(copy.dbl2, 6);
    EXPECT_EQ(to_narrow(copy.font_name), c.name);
    EXPECT_EQ(copy.font.font_name, c.font);
    EXPECT_EQ(bytes_to_hex(copy.bytes2, ""), c.name == "Arial" ? "010203040506" : "");
    const Bytes whole = Bytes().object(symbol.clsid, 5, c.version, c.fields);
    if (c.ok) expect_prefixes_fail<Tmxd_char_marker_symbol>(whole);
  }
}

// A color after the symbol must not fill a slot that zeros leave empty.
TEST(Picture_symbols, zeros_mean_no_color) {
  const Bytes red = record("rgb_color", 40);
  for (int empty = 0; empty < 3; ++empty) {
    SCOPED_TRACE(empty);
    Bytes colors[3];
    for (int i = 0; i < 3; ++i)
      colors[i] = i == empty ? Bytes().zeros(16) : record("rgb_color", 50 + i);
    Tmxd_picture_fill_symbol fill;
    EXPECT_TRUE(read_as(
        fill, 1,
        Packed(colors[0], colors[1], colors[2], record("simple_line_symbol", 60), run(87), red)));
    EXPECT_EQ(fill.color_slot1.get() == nullptr, empty == 0);
    EXPECT_EQ(fill.color_slot2.get() == nullptr, empty == 1);
    EXPECT_EQ(fill.color_slot3.get() == nullptr, empty == 2);
    EXPECT_EQ(bytes_to_hex(fill.bytes1, ""), bytes_to_hex(run(87).data(), ""));
    if (empty == 2) continue;
    Tmxd_picture_marker_symbol marker;
    EXPECT_TRUE(read_as(marker, 1, Packed(colors[0], colors[1], run(65), red)));
    EXPECT_EQ(marker.color_slot1.get() == nullptr, empty == 0);
    EXPECT_EQ(marker.color_slot2.get() == nullptr, empty == 1);
    EXPECT_EQ(bytes_to_hex(marker.bytes1, ""), bytes_to_hex(run(65).data(), ""));
  }
}

TEST(Font, flags_size_and_name) {
  for (const bool styled : {false, true}) {
    Decoder decoder(font(1, styled ? 0x0E : 0x01).prefix(styled ? 36 : 34));
    Tmxd_font record;
    // A name that is cut has its length all the same.
    EXPECT_EQ(record.read(decoder.stream), styled);
    EXPECT_EQ(record.font_name, styled ? "Serif" : std::string("Ser\0\0", 5));
    EXPECT_EQ(record.italic(), styled);
    EXPECT_EQ(record.underline(), styled);
    EXPECT_EQ(record.strikethrough(), styled);
    EXPECT_EQ(record.size_in_points(), 10.0);
  }
}

TEST(Symbols, keep_what_stands_before_a_foreign_trailer) {
  Tmxd_simple_marker_symbol dot;
  EXPECT_FALSE(read_as(dot, 1, row_named("simple_marker_symbol").fields(5, 12)));
  EXPECT_TRUE(dot.color.get() && dot.simple_marker_style == -3 && dot.angle == 0);
  Tmxd_simple_line_symbol line;
  EXPECT_FALSE(read_as(line, 1, row_named("simple_line_symbol").fields(5, 12)));
  EXPECT_TRUE(line.color_slot.get() && line.line_type == -2);
  Tmxd_line_fill_symbol hatch;
  EXPECT_FALSE(read_as(hatch, 1, row_named("line_fill_symbol").fields(5, 12)));
  EXPECT_TRUE(hatch.outline.get() && hatch.separation == 6);
  Tmxd_simple_fill_symbol fill;
  EXPECT_FALSE(read_as(fill, 1, row_named("simple_fill_symbol").fields(5, 12)));
  EXPECT_TRUE(fill.color_slot.get() && fill.int1 == 0);
}

TEST(Hash_line, takes_its_bytes_behind_a_failed_slot) {
  const Bytes head = Packed(45.0, 1, 2, 3.0, byte(4), 5.0);
  struct Case {
    Bytes fields;
    std::size_t taken;
  };
  for (const Case& c :
       {Case{Packed(head, record("simple_line_symbol", 6, 12), run(40)), 16},
        {Packed(head, record("simple_line_symbol", 6), Bytes().guid({{1}}), run(40)), 16},
        {head.prefix(27), 16},
        {head.prefix(24), 0}}) {
    Tmxd_hash_line_symbol symbol;
    EXPECT_FALSE(read_as(symbol, 1, c.fields));
    EXPECT_EQ(symbol.bytes1.size(), c.taken);
  }
}

TEST(Line_symbols, do_without_slots_templates_and_decorations) {
  const Bytes absent = Bytes().null_object();
  Tmxd_cartographic_line_symbol road;
  ASSERT_TRUE(read_as(
      road, 1, Packed(1, 2, 3.0, byte(4), 5.0, absent, absent, trailer(13), byte(6), 7.0, 8.0)));
  EXPECT_EQ(road.dbl2, 8);
  EXPECT_NE(folded(dump_of(road)).find(" color = UNDEFINED mxd_line_template = {"),
            std::string::npos);
  EXPECT_NE(
      folded(xml_of(road)).find("<mxd_line_decoration> <exists>false</exists> </mxd_line_deco"),
      std::string::npos);
  Tmxd_marker_line_symbol trail;
  ASSERT_TRUE(read_as(trail, 1, Packed(byte(1), 2.0, absent, run(16), trailer(13), run(25))));
  EXPECT_EQ(trail.leading_byte, 1);
  EXPECT_NE(dump_of(trail).find("\n  symbol = UNDEFINED\n"), std::string::npos);
  EXPECT_NE(xml_of(trail).find("\n<pattern_marker>true</pattern_marker>\n"), std::string::npos);
}

TEST(Line_parts, claimed_counts) {
  struct Case {
    int count;
    bool ok;
    std::size_t kept;
  };
  for (const Case& c : {Case{0, true, 0}, {-1, true, 0}, {2, true, 2}, {0x7FFFFFFF, false, 2}}) {
    SCOPED_TRACE(c.count);
    Tmxd_line_template dash;
    EXPECT_EQ(read_as(dash, 1, Packed(2.0, c.count, 1.0, 2.0, 3.0, 4.0)), c.ok);
    EXPECT_EQ(dash.items.size(), c.kept);
    Tmxd_simple_line_decoration_element element;
    EXPECT_EQ(read_as(element, 1, Packed(run(5), c.count, 1.0, 2.0)), c.ok);
    EXPECT_EQ(element.positions.size(), c.kept);
    EXPECT_EQ(dump_of(element).find("\n  positions = \n") != std::string::npos, c.kept == 0);
    Tmxd_line_decoration decor;
    const Bytes two = Packed(record("simple_line_decoration_element", 6),
                             record("simple_line_decoration_element", 7));
    EXPECT_EQ(read_as(decor, 1, Packed(c.count, two, record("line_template", 8))), c.ok);
    EXPECT_EQ(decor.elements.size(), c.kept);
  }
}

}  // namespace
}  // namespace mxd::test
