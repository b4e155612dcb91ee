#include "symbology/class_table.h"

#include "rendering/legend.h"

namespace mxd::test {
namespace {

Bytes font() {
  return packed(Bytes().guid(guid_from_text("0be35203-8f91-11ce-9de3-00aa004bb851")), -1, byte(1),
                Bytes().u16(204), byte(0x0E), Bytes().u16(700), 12500, byte(7),
                Bytes().raw("Symbols"));
}

std::vector<Class_row> color_rows() {
  return {
      class_row<Tmxd_rgb_color>(
          "red", "mxd_rgb_color", "7ee9c496-d123-11d0-8383-080009b996cc", 1,
          [](int, int) { return packed(run(3), 53.24, 80.09, 67.20, byte(1), byte(1)); },
          "color = red = 245, green = 0, blue = 0 dither = true no_use = false",
          "<r>245</r> <g>0</g> <b>0</b> <dither>true</dither> <no_use>false</no_use>"),
      class_row<Tmxd_hsv_color>(
          "gray", "mxd_hsv_color", "7ee9c492-d123-11d0-8383-080009b996cc", 1,
          [](int, int) { return packed(run(3), 50.0, 0.0, 0.0, byte(255), byte(255)); },
          "color = red = 100, green = 100, blue = 100 dither = false no_use = true",
          "<r>100</r> <g>100</g> <b>100</b> <dither>false</dither> <no_use>true</no_use>"),
      class_row<Tmxd_cmyk_color>(
          "ink", "mxd_cmyk_color", "7ee9c497-d123-11d0-8383-080009b996cc", 1,
          [](int, int) {
            return packed(run(2), byte(0), byte(50), byte(100), byte(20), byte(2), byte(0));
          },
          "color = red = 204, green = 102, blue = 0 dither = false no_use = false",
          "<r>204</r> <g>102</g> <b>0</b> <dither>false</dither> <no_use>false</no_use>"),
  };
}

std::vector<Class_row> line_part_rows() {
  return {
      class_row<Tmxd_line_template>(
          "dash", "mxd_line_template", "41093a71-cce1-11d0-bfaa-0080c7e24280", 1,
          [](int, int) { return packed(2.0, 2, 1.0, 2.5, 3.0, 4.0); },
          "pattern_interval = 2 filled = 1 empty = 2.5 filled = 3 empty = 4",
          R"(<pattern_interval>2</pattern_interval> <items>
             <item_1> <filled>1</filled> <empty>2.5</empty> </item_1>
             <item_2> <filled>3</filled> <empty>4</empty> </item_2> </items>)"),
      class_row<Tmxd_simple_line_decoration_element>(
          "element", "mxd_simple_line_decoration_element", "533d88f3-0a1a-11d2-b27f-0000f878229e",
          1,
          [](int n, int) {
            return packed(byte(1), byte(0), byte(200), run(2), record("glyph", 10 * n), 2, 0.25,
                          1.0);
          },
          R"(unfixed_angle = 1 flip_first = 0 flip_all = 200 bytes1 = 01 02 $glyph#0
             positions = 0.25, 1)",
          R"(<unfixed_angle>1</unfixed_angle> <flip_first>0</flip_first> <flip_all>200</flip_all>
             <bytes1>01 02</bytes1> <marker> $glyph#0 </marker>
             <positions> <pos_1>0.25</pos_1> <pos_2>1</pos_2> </positions>)"),
      class_row<Tmxd_line_decoration>(
          "decor", "mxd_line_decoration", "533d88f5-0a1a-11d2-b27f-0000f878229e", 1,
          [](int n, int) {
            return packed(2, record("element", 10 * n), record("element", 10 * n + 1));
          },
          "$element#0 $element#1",
          R"(<line_decorations> <line_decor_1> $element#0 </line_decor_1>
             <line_decor_2> $element#1 </line_decor_2> </line_decorations>)"),
  };
}

std::vector<Class_row> marker_rows() {
  std::vector<Class_row> rows = {
      class_row<Tmxd_simple_marker_symbol>(
          "dot", "mxd_simple_marker_symbol", "7914E5FE-C892-11D0-8BB6-080009EE4E41", 1,
          [](int n, int mark) {
            return packed(record("red", 10 * n), 8.5, -3, trailer(mark), 45.0, 1.25, -2.0,
                          byte(200), 0.75, record("gray", 10 * n + 1), run(2));
          },
          R"($red#0 size = 8.5 simple_marker_style = -3 angle = 45 x_offset = 1.25 y_offset = -2
             outline_flag = 200 outline_width = 0.75 $gray#1)",
          R"(<color> $red#0 </color> <size>8.5</size> <simple_marker_style>-3</simple_marker_style>
             <angle>45</angle> <x_offset>1.25</x_offset> <y_offset>-2</y_offset>
             <outline_flag>200</outline_flag> <outline_width>0.75</outline_width>
             <outline_color> $gray#1 </outline_color>)"),
      class_row<Tmxd_char_marker_symbol>(
          "glyph", "mxd_char_marker_symbol", "7914e600-c892-11d0-8bb6-080009ee4e41", 4,
          [](int n, int mark) {
            return packed(record("ink", 10 * n), 65, 90.0, 12.5, 1.0, 2.0, 3.0, 4.0, trailer(mark),
                          Bytes().u16(65535), "Arial", 5.0, 6.0, run(2), run(10), font());
          },
          R"(unicode = 65 angle = 90 size = 12.5 x_offset = 1 y_offset = 2 font_name = Arial $ink#0
             font = { font_name = Symbols size = 12.5 })",
          R"(<unicode>65</unicode> <angle>90</angle> <size>12.5</size> <x_offset>1</x_offset>
             <y_offset>2</y_offset> <font_name>Arial</font_name> <color_slot> $ink#0 </color_slot>
             <font> <font_name>Symbols</font_name> <size>12.5</size> </font>)"),
      class_row<Tmxd_arrow_marker_symbol>(
          "arrow", "mxd_arrow_marker_symbol", "88539431-e06e-11d1-b277-0000f878229e", 1,
          [](int n, int mark) {
            return packed(record("red", 10 * n), 10.0, 5.0, 30.0, -1, trailer(mark), 1.0, 2.0,
                          run(2));
          },
          R"(size = 10 width = 5 angle = 30 bytes1 = unused_uint1 = -1 x_offset = 1 y_offset = 2
             bytes2 = 01 02 $red#0)",
          R"(<size>10</size> <width>5</width> <angle>30</angle> <bytes1/>
             <unused_uint1>-1</unused_uint1> <x_offset>1</x_offset> <y_offset>2</y_offset>
             <bytes2>01 02</bytes2> <color_slot> $red#0 </color_slot>)"),
      class_row<Tmxd_picture_marker_symbol>(
          "stamp", "mxd_picture_marker_symbol", "7914E602-C892-11D0-8BB6-080009EE4E41", 1,
          [](int n, int) {
            return packed(record("red", 10 * n), record("gray", 10 * n + 1), run(65));
          },
          "$red#0 $gray#1 bytes1 = $run65",
          R"(<color_slot1> $red#0 </color_slot1> <color_slot2> $gray#1 </color_slot2>
             <bytes1>$run65</bytes1>)"),
      class_row<Tmxd_multilayer_marker_symbol>(
          "markers", "mxd_multilayer_marker_symbol", "7914E5FF-C892-11D0-8BB6-080009EE4E41", 3,
          [](int n, int mark) {
            return packed(trailer(mark), 1.0, 2.0, 3.0, 4.0, record("red", 10 * n), 5, 6.0,
                          record("line", 10 * n + 1), 2, record("dot", 10 * n + 2),
                          record("stamp", 10 * n + 3), 0, 5, -1, 0, 7.0, 8.0, "under", "over");
          },
          "$dot#2 $stamp#3",
          R"(<marker_symbols> <marker_symbol_1> $dot#2 </marker_symbol_1>
             <marker_symbol_2> $stamp#3 </marker_symbol_2> </marker_symbols>)"),
  };
  // When the outline's color is cut within its id, the closing bytes are found in that.
  rows[0].dispensable = 51;
  return rows;
}

std::vector<Class_row> line_rows() {
  return {
      class_row<Tmxd_simple_line_symbol>(
          "line", "mxd_simple_line_symbol", "7914e5f9-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) { return packed(record("red", 10 * n), 0.5, -2, trailer(mark)); },
          "$red#0 width = 0.5 line_type = -2",
          "<color_slot> $red#0 </color_slot> <width>0.5</width> <line_type>-2</line_type>"),
      class_row<Tmxd_cartographic_line_symbol>(
          "road", "mxd_cartographic_line_symbol", "7914e5fb-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) {
            return packed(1, -2, 3.5, byte(200), -4.0, record("red", 10 * n),
                          record("dash", 10 * n + 1), record("decor", 10 * n + 2), trailer(mark),
                          byte(5), 6.0, 7.0);
          },
          R"(cap = 1 join = -2 width = 3.5 byte1 = 200 offset = -4 $red#0 $dash#1 $decor#2 byte2 = 5
             dbl1 = 6 dbl2 = 7)",
          R"(<cap>1</cap> <join>-2</join> <width>3.5</width> <byte1>200</byte1> <offset>-4</offset>
             <color_slot> $red#0 </color_slot> <line_template> $dash#1 </line_template>
             <line_decoration> $decor#2 </line_decoration> <byte2>5</byte2> <dbl1>6</dbl1>
             <dbl2>7</dbl2>)"),
      class_row<Tmxd_hash_line_symbol>(
          "rail", "mxd_hash_line_symbol", "7914e5fc-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) {
            return packed(45.0, 1, 2, 3.0, byte(4), 5.0, record("line", 10 * n),
                          record("gray", 10 * n + 1), record("dash", 10 * n + 2), run(16),
                          trailer(mark), byte(6), 7.0, 8.0);
          },
          R"(angle = 45 cap = 1 join = 2 width = 3 byte1 = 4 offset = 5 $line#0 $gray#1 $dash#2
             bytes1 = $run16 byte2 = 6 dbl1 = 7 dbl2 = 8)",
          R"(<angle>45</angle> <cap>1</cap> <join>2</join> <width>3</width> <byte1>4</byte1>
             <offset>5</offset> <line_slot> $line#0 </line_slot> <color_slot> $gray#1 </color_slot>
             <line_template> $dash#2 </line_template> <bytes1>$run16</bytes1> <byte2>6</byte2>
             <dbl1>7</dbl1> <dbl2>8</dbl2>)"),
      class_row<Tmxd_marker_line_symbol>(
          "trail", "mxd_marker_line_symbol", "7914e5fd-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) {
            return packed(byte(9), 1.5, record("arrow", 10 * n), record("dash", 10 * n + 1),
                          run(16), trailer(mark), run(25));
          },
          "offset = 1.5 $arrow#0 $dash#1 bytes1 = $run16 bytes2 = $run25",
          R"(<offset>1.5</offset> <pattern_marker> $arrow#0 </pattern_marker>
             <line_template> $dash#1 </line_template> <bytes1>$run16</bytes1>
             <bytes2>$run25</bytes2>)"),
      class_row<Tmxd_multilayer_line_symbol>(
          "lines", "mxd_multilayer_line_symbol", "7914E5FA-C892-11D0-8BB6-080009EE4E41", 2,
          [](int n, int mark) {
            return packed(trailer(mark), 2, record("line", 10 * n), record("trail", 10 * n + 1), 0,
                          5, -1, 0, "under", "over");
          },
          "$line#0 $trail#1",
          R"(<line_symbols> <line_symbol_1> $line#0 </line_symbol_1>
             <line_symbol_2> $trail#1 </line_symbol_2> </line_symbols>)"),
  };
}

std::vector<Class_row> fill_rows() {
  return {
      class_row<Tmxd_simple_fill_symbol>(
          "fill", "mxd_simple_fill_symbol", "7914E603-C892-11D0-8BB6-080009EE4E41", 1,
          [](int n, int mark) {
            return packed(record("line", 10 * n), record("red", 10 * n + 1), trailer(mark), -1);
          },
          "$line#0 $red#1 int1 = -1",
          "<outline> $line#0 </outline> <color_slot> $red#1 </color_slot> <int1>-1</int1>"),
      class_row<Tmxd_line_fill_symbol>(
          "hatch", "mxd_line_fill_symbol", "7914e606-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) {
            return packed(1.0, 2.0, record("line", 10 * n), record("line", 10 * n + 1), 4.0, 5.0,
                          6.0, trailer(mark));
          },
          R"(unused_dbl1 = 1 unused_dbl2 = 2 $line#0 $line#1 angle = 4 offset = 5 separation = 6)",
          R"(<unused_dbl1>1</unused_dbl1> <unused_dbl2>2</unused_dbl2>
             <pattern> $line#0 </pattern> <outline> $line#1 </outline> <angle>4</angle>
             <offset>5</offset> <separation>6</separation>)"),
      class_row<Tmxd_marker_fill_symbol>(
          "scatter", "mxd_marker_fill_symbol", "7914e608-c892-11d0-8bb6-080009ee4e41", 1,
          [](int n, int mark) {
            return packed(-7, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, record("dot", 10 * n),
                          record("line", 10 * n + 1), trailer(mark), 8.0);
          },
          R"(random = -7 offset_x = 1 offset_y = 2 separation_x = 3 separation_y = 4 dbl1 = 5
             dbl2 = 6 $dot#0 $line#1 dbl3 = 8)",
          R"(<random>-7</random> <offset_x>1</offset_x> <offset_y>2</offset_y>
             <separation_x>3</separation_x> <separation_y>4</separation_y> <dbl1>5</dbl1>
             <dbl2>6</dbl2> <marker_slot> $dot#0 </marker_slot>
             <outline_slot> $line#1 </outline_slot> <dbl3>8</dbl3>)"),
      class_row<Tmxd_picture_fill_symbol>(
          "tile", "mxd_picture_fill_symbol", "D842B082-330C-11D2-9168-0000F87808EE", 1,
          [](int n, int) {
            return packed(record("red", 10 * n), record("gray", 10 * n + 1),
                          record("ink", 10 * n + 2), record("line", 10 * n + 3), run(87));
          },
          "$red#0 $gray#1 $ink#2 $line#3 bytes1 = $run87",
          R"(<color_slot1> $red#0 </color_slot1> <color_slot2> $gray#1 </color_slot2>
             <color_slot3> $ink#2 </color_slot3> <outline> $line#3 </outline>
             <bytes1>$run87</bytes1>)"),
      class_row<Tmxd_multilayer_fill_symbol>(
          "fills", "mxd_multilayer_fill_symbol", "7914E604-C892-11D0-8BB6-080009EE4E41", 2,
          [](int n, int mark) {
            return packed(trailer(mark), record("red", 10 * n), 2, record("fill", 10 * n + 1),
                          record("tile", 10 * n + 2), 0, 5, -1, 0, "under", "over");
          },
          "$red#0 $fill#1 $tile#2",
          R"(<unused_color> $red#0 </unused_color> <fill_symbols>
             <fill_symbol_1> $fill#1 </fill_symbol_1> <fill_symbol_2> $tile#2 </fill_symbol_2>
             </fill_symbols>)"),
  };
}

TEST(Symbology_classes, read_show_and_copy_every_field) {
  for (const Class_row& row : class_table()) {
    SCOPED_TRACE(row.type);
    const Bytes whole = record(row, 5);
    Decoder decoder(Bytes(whole).add(reference(row.name, 5)));
    const auto object = row.make();
    ASSERT_TRUE(read_object(*object, decoder.stream, -1, -1));
    EXPECT_EQ(decoder.stream.tell(), whole.size());
    EXPECT_EQ(object->class_id().text, row.class_id);
    EXPECT_EQ(folded(dump_of(*object)), output(row, 5, Face::dump));
    EXPECT_EQ(folded(xml_of(*object)), "<it> " + output(row, 5, Face::xml) + " </it>");

    // What a symbol is as a layer travels with its copies, but for one class.
    auto* symbol = dynamic_cast<Tmxd_symbol*>(object.get());
    if (symbol) symbol->tag = widen("tag");
    const auto copy = row.make();
    ASSERT_TRUE(read_object(*copy, decoder.stream, -1, -1));
    EXPECT_EQ(copy->repeat, 1);
    EXPECT_EQ(fields_of(*copy), fields_of(*object));
    if (symbol) {
      const bool stays = row.name == std::string_view("hatch");
      EXPECT_EQ(to_narrow(dynamic_cast<Tmxd_symbol&>(*copy).tag), stays ? "" : "tag");
    }
    EXPECT_FALSE(copy->copy_from(Tmxd_legend_class()));
    EXPECT_EQ(fields_of(*copy), fields_of(*object));
    EXPECT_TRUE(decoder.errors.lines.empty());
  }
}

TEST(Symbology_classes, fail_on_a_cut_record_and_on_another_trailer) {
  int trailers = 0;
  for (const Class_row& row : class_table()) {
    SCOPED_TRACE(row.type);
    const Bytes whole = record(row, 5);
    row.expect_prefixes_fail(whole, whole.size() - row.dispensable);
    const Bytes other = record(row, 5, 12);
    if (other.data() == whole.data()) continue;
    ++trailers;
    Decoder decoder(other);
    EXPECT_FALSE(read_object(*row.make(), decoder.stream, -1, -1));
  }
  EXPECT_GE(trailers, 13);
}

}  // namespace

const std::vector<Class_row>& class_table() {
  static const std::vector<Class_row> rows = [] {
    std::vector<Class_row> all = color_rows();
    for (const auto& more : {line_part_rows(), marker_rows(), line_rows(), fill_rows()}) {
      all.insert(all.end(), more.begin(), more.end());
    }
    return all;
  }();
  return rows;
}

}  // namespace mxd::test
