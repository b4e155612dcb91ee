#include "support/class_table.h"
#include "support/decoded.h"

namespace mxd::test {
namespace {

Bytes font(int version, int flags, const Guid& class_id = standard_font_id.guid) {
  return Packed(Bytes().guid(class_id), font_fields(1, version, flags, 10000, "Serif"));
}

template <class T>
Bytes object(int version, const Packed& fields) {
  return Bytes().object(T::clsid, 5, version, fields);
}

// Each is followed by a reference to it, which copies.
TEST(Char_marker, reads_what_its_version_has) {
  const Bytes head = Packed(65, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
  const Bytes mark = Packed(trailer(13), word(65535));
  const Bytes other_mark = Packed(trailer(13), word(65534));
  const Bytes named = Packed("Arial", 7.0, 8.0, byte(9), byte(10), run(4), run(6));
  const Bytes other_class = font(1, 0, Guid{{1}});
  std::vector<Decode_case> cases;
  for (const auto& [version, fields] : std::initializer_list<std::pair<int, Bytes>>{
           {1, Packed(head, mark)},
           {2, Packed(head, font(1, 0), mark)},
           {3, Packed(head, mark, named)},
           {4, Packed(head, mark, named, font(1, 0))},
           {5, Packed(head, mark, named, font(1, 0))},
           {1, Packed(head, other_mark)},
           {5, Packed(head, other_mark, named, font(1, 0))},
           {2, Packed(head, font(2, 0), mark)},
           {4, Packed(head, mark, named, other_class)}}) {
    const Bytes whole = object<Tmxd_char_marker_symbol>(version, fields);
    if (cases.size() < 5) expect_prefixes_fail<Tmxd_char_marker_symbol>(whole);
    cases.push_back({"version " + std::to_string(version),
                     Bytes(whole).add(reference("char_marker_symbol", 5))});
  }
  expect_decoded<Tmxd_char_marker_symbol, Tmxd_char_marker_symbol>("symbology", "character markers",
                                                                   cases);
}

// A color after the symbol must not fill a slot that zeros leave empty.
TEST(Picture_symbols, zeros_mean_no_color) {
  const Bytes red = record("rgb_color", 40), green = record("rgb_color", 41);
  const Bytes line = record("simple_line_symbol", 60), none = Bytes().zeros(16);
  const auto fill = [&](const Bytes& colors) {
    return object<Tmxd_picture_fill_symbol>(1, {colors, line, run(87), red});
  };
  const auto marker = [&](const Bytes& colors) {
    return object<Tmxd_picture_marker_symbol>(1, {colors, run(65), red});
  };
  expect_decoded<Tmxd_picture_fill_symbol>("symbology", "picture fills",
                                           {{"no first color", fill(Packed(none, red, green))},
                                            {"no second color", fill(Packed(red, none, green))},
                                            {"no third color", fill(Packed(red, green, none))}});
  expect_decoded<Tmxd_picture_marker_symbol>("symbology", "picture markers",
                                             {{"no first color", marker(Packed(none, red))},
                                              {"no second color", marker(Packed(red, none))}});
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

// What comes before the trailer is kept.
TEST(Symbols, of_another_trailer) {
  std::string text;
  for (const Class_row& row : class_table()) {
    const Bytes bytes = record(row, 5, 12);
    if (bytes.data() == record(row, 5).data()) continue;
    Decoder decoder(bytes);
    text += decoded(*row.make(), decoder);
  }
  expect_golden("symbology", "other trailers", text);
}

TEST(Hash_line, takes_its_bytes_after_a_failed_slot) {
  const Bytes head = Packed(45.0, 1, 2, 3.0, byte(4), 5.0);
  const Bytes failing = record("simple_line_symbol", 6, 12);
  const Bytes line = record("simple_line_symbol", 6);
  const auto hashes = [](const Bytes& fields) { return object<Tmxd_hash_line_symbol>(1, fields); };
  expect_decoded<Tmxd_hash_line_symbol>(
      "symbology", "hash lines",
      {{"whose line fails", hashes(Packed(head, failing, run(40)))},
       {"whose template fails", hashes(Packed(head, line, Bytes().guid({{1}}), run(40)))},
       {"cut in their offset", hashes(head.prefix(27))},
       {"cut before it", hashes(head.prefix(24))}});
}

TEST(Line_symbols, do_without_slots_templates_and_decorations) {
  const Bytes absent = Bytes().null_object();
  Decoder roads(object<Tmxd_cartographic_line_symbol>(
      1, {1, 2, 3.0, byte(4), 5.0, absent, absent, trailer(13), byte(6), 7.0, 8.0}));
  Tmxd_cartographic_line_symbol road;
  ASSERT_TRUE(read_object(road, roads.stream, -1, -1));
  expect_golden("symbology", "bare cartographic line", road);
  Decoder trails(
      object<Tmxd_marker_line_symbol>(1, {byte(1), 2.0, absent, run(16), trailer(13), run(25)}));
  Tmxd_marker_line_symbol trail;
  ASSERT_TRUE(read_object(trail, trails.stream, -1, -1));
  expect_golden("symbology", "bare marker line", trail);
}

TEST(Line_parts, claimed_counts) {
  std::vector<Decode_case> dashes, elements, decorations;
  for (const int count : {0, -1, 2, 0x7FFFFFFF}) {
    const std::string what = std::to_string(count);
    const Bytes two = Packed(record("simple_line_decoration_element", 6),
                             record("simple_line_decoration_element", 7));
    dashes.push_back({what, object<Tmxd_line_template>(1, {2.0, count, 1.0, 2.0, 3.0, 4.0})});
    elements.push_back(
        {what, object<Tmxd_simple_line_decoration_element>(1, {run(5), count, 1.0, 2.0})});
    decorations.push_back(
        {what, object<Tmxd_line_decoration>(1, {count, two, record("line_template", 8)})});
  }
  expect_decoded<Tmxd_line_template>("symbology", "templates of counts", dashes);
  expect_decoded<Tmxd_simple_line_decoration_element>("symbology", "positions of counts", elements);
  expect_decoded<Tmxd_line_decoration>("symbology", "decorations of counts", decorations);
}

}  // namespace
}  // namespace mxd::test
