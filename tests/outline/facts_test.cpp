#include <limits>

#include "core/number_text.h"
#include "outline/epsg_code.h"
#include "outline/outlined.h"

namespace mxd::test {
namespace {

Outlined with_layer(const Bytes& layer, const Bytes& after = {}) {
  return Outlined(one_map(Bytes(before_list()).add(map_list({layer})).add(after)));
}

TEST(Outline, definition_queries) {
  const Bytes query = text("A > 1");
  const Bytes cmyk = object<Tmxd_cmyk_color>(90, 1, run(8));
  const Bytes unknown = Bytes().object(unheard_of_id, 90, 1, run(29));
  const std::vector<Row> rows = {
      {"after no color", definition_query(query)},
      {"after a color", definition_query(query, rgb_color(90, 50))},
      {"after a color of inks", definition_query(query, cmyk)},
      {"none", definition_query(text(""))},
      {"of no length", definition_query(Bytes().wide(""))},
      {"after an unknown color", definition_query(query, unknown)},
      {"without its NUL", definition_query(Bytes().wide("A > 1"))},
      {"with a NUL inside", definition_query(Bytes().wide(std::string_view("A\0B\0", 4)))},
      {"too short for its length", definition_query(Bytes().i32(600).counting(20))},
      {"not stored", {}},
  };
  expect_rows("definition queries", rows, [](const Bytes& rest) {
    return shown(with_layer(named_feature_layer(10, "a", rest)).facts().definition_query);
  });
}

TEST(Outline, no_definition_query_after_impossible_scales) {
  const Bytes whole = named_feature_layer(10, "a", definition_query(text("A > 1")));
  const std::size_t rest = definition_query(text("A > 1")).size();
  for (const double scale : {-1.0, 1e13, std::numeric_limits<double>::quiet_NaN()}) {
    const Bytes misread =
        whole.prefix(whole.size() - rest - 8).f64(scale).add(definition_query(text("A > 1")));
    EXPECT_EQ(with_layer(misread).facts().definition_query, std::nullopt) << scale;
  }
}

// "shown: [Name] #000000 Arial 8; ..."
std::string labels_text(const std::optional<Labels>& labels) {
  if (!labels) return "-";
  std::string out = labels->shown ? "shown:" : "hidden:";
  for (const Label_class& item : labels->classes) {
    out += ' ' + to_narrow(item.expression);
    if (item.color)
      out +=
          " #" + bytes_to_hex(Byte_run{item.color->red, item.color->green, item.color->blue}, "");
    if (item.font)
      out += ' ' + to_narrow(item.font->name) + ' ' +
             std::to_string(item.font->size_in_points).substr(0, 4);
    out += ';';
  }
  return out;
}

TEST(Outline, labels) {
  const Bytes gray = rgb_color(72, 50);
  const Bytes arial = font("Arial", 8, 8.25);
  const auto one = [&](const Bytes& symbol, const Bytes& expression = text("[N]")) {
    return labels(73, -1, label_class(74, expression, symbol));
  };
  const auto of = [&](const Bytes& fonts) { return one(text_symbol(75, gray, fonts)); };
  const Bytes bare = label_class(74, text("[N]"), {});
  const Bytes white = text_symbol(77, rgb_color(78, 100), font("Verdana", 10, 10));
  const Bytes two = Packed(label_class(74, text("[N]"), text_symbol(75, gray, arial)),
                           label_class(76, text("[M]"), white));
  const Bytes stored = reference<Tmxd_rgb_color>(72);
  const std::vector<Row> rows = {
      {"shown", of(arial)},
      {"hidden", labels(73, 0, bare)},
      {"of two classes", labels(73, -1, two, 2)},
      {"of one class, and another that is not counted", labels(73, -1, two)},
      {"of fewer classes than are counted", labels(73, -1, two, 9)},
      {"of no class", labels(73, -1, {}, 0)},
      {"with a marker's font before its own", of(font("Marker", 0, 24).add(arial))},
      {"with a marker's font alone", of(font("Marker", 1e-312, 24))},
      {"in a font of another alphabet", of(font("\xCB\xCE", 8, 8))},
      {"whose color was stored before", one(text_symbol(75, stored, arial))},
      {"whose symbol was stored before", one(Bytes().reference(text_symbol_id, 75))},
      {"whose expression is no text", one(text_symbol(75, gray, arial), Bytes().i32(-1))},
      {"that may or may not be shown", labels(73, 5, bare)},
      {"of another version", labels(73, -1, bare, 1, 3)},
      {"none", {}},
  };
  expect_rows("labels", rows, [](const Bytes& bytes) {
    const Bytes rest = definition_query(text("")).add(bytes);
    return labels_text(with_layer(named_feature_layer(10, "a", rest)).facts().labels);
  });
}

TEST(Outline, labels_are_not_those_of_the_next_layer) {
  const Bytes labelled = labels(73, -1, label_class(74, text("[N]"), {}));
  const Outlined outlined(one_map(
      Bytes(before_list())
          .add(map_list({named_feature_layer(10, "a"), named_feature_layer(20, "b", labelled)}))));
  EXPECT_EQ(labels_text(outlined.map().records.at(0).facts.labels), "-");
  EXPECT_EQ(labels_text(outlined.map().records.at(1).facts.labels), "shown: [N];");
}

TEST(Outline, normalization_and_order_of_classes) {
  const Bytes format = number_format(90);
  const Bytes area = text("AREA");
  const Bytes id = Bytes().zeros(18).u8(1).guid(unheard_of_id.guid).u16(0);
  const std::vector<Row> rows = {
      {"ascending", normalization(format, area, -1)},
      {"ascending, too", normalization(format, text(""), 1)},
      {"descending", normalization(format, area, 0)},
      {"after a class id", Packed(id, format, area, -1, 10000)},
      {"after a longer format", normalization(number_format(90, 60, "7E4F471B"), area, 0)},
      {"after something else", normalization(rgb_color(90, 1), area, 0)},
      {"of another order", normalization(format, area, 2)},
      {"not text", normalization(format, Bytes().wide("AREA"), 0)},
      {"without the number at the end", normalization(format, area, 0).u16(0)},
      {"not stored", Bytes().zeros(20)},
  };
  const Bytes ranges = Packed(2, 1.0, 2.0, 0.0, 1.0);
  expect_rows("normalization", rows, [&](const Bytes& after_legend) {
    const Bytes renderer = class_breaks_renderer(23, ranges).add(after_legend);
    const Outlined outlined = with_layer(feature_layer(20, renderer));
    const auto ascend = outlined.facts().classes_ascend;
    return shown(outlined.facts().normalization_field) + (!ascend   ? ""
                                                          : *ascend ? ", ascending"
                                                                    : ", descending");
  });
}

TEST(Outline, extents) {
  const Bytes one = envelope(80, {1, 2, 3, 4});
  const Bytes other = envelope(81, {5, 6, 7, 8});
  const Bytes system = its_system();
  const Bytes pair = Packed(other, system, one);
  const Bytes no_system = Bytes().i32(0).null_object();
  const Bytes alone = Packed(system, Bytes().null_object());
  const double infinite = std::numeric_limits<double>::infinity();
  const std::vector<Row> rows = {
      {"a pair", Packed(one, system, other)},
      {"a pair without coordinate system", Packed(one, no_system, other)},
      {"the first of two pairs", Packed(one, system, other, Bytes().zeros(8), pair)},
      {"one alone", Packed(one, alone)},
      {"a pair after one alone", Packed(other, alone, one, system, other)},
      {"apart", Packed(one, system, Bytes().zeros(5), other)},
      {"of another version", Packed(envelope(80, {1, 2, 3, 4}, 2), system, other)},
      {"out of order", Packed(envelope(80, {3, 2, 1, 4}), system, other)},
      {"infinite", Packed(envelope(80, {1, 2, infinite, 4}), system, other)},
      {"cut", Packed(one, system).prefix(70)},
  };
  expect_rows("extents", rows, [](const Bytes& after_layers) {
    const auto outlined = with_layer(named_feature_layer(10, "a"), Packed(run(9), after_layers));
    const auto extent = outlined.map().extent;
    if (!extent) return std::string("-");
    return double_text(extent->xmin) + ' ' + double_text(extent->ymin) + ' ' +
           double_text(extent->xmax) + ' ' + double_text(extent->ymax);
  });
  // Layers have extents of their own.
  EXPECT_EQ(with_layer(named_feature_layer(10, "a", pair)).map().extent, std::nullopt);
}

TEST(Outline, document_facts) {
  const Bytes version = Bytes().wide("10.6").i32(7);
  const auto facts = read_document_facts(version.data(), metadata(4, 43124.5).data());
  ASSERT_TRUE(facts.properties);
  EXPECT_EQ(shown(facts.version), "10.6");
  EXPECT_EQ(to_narrow(facts.properties->title), "Title");
  EXPECT_EQ(to_narrow(facts.properties->author), "Author");
  EXPECT_EQ(facts.properties->description.size(), 20000U);
  EXPECT_EQ(to_narrow(facts.properties->summary), "Summary");
  EXPECT_EQ(to_narrow(facts.properties->tags), "a, b");
  EXPECT_EQ(to_narrow(facts.properties->hyperlink_base), "http://base");
  EXPECT_EQ(to_narrow(facts.properties->credits), "Credits");
  EXPECT_EQ(shown(facts.saved_path), "C:\\m.mxd");
  EXPECT_EQ(facts.saved_date, 43124.5);

  EXPECT_FALSE(read_document_facts({}, {}).version);
  EXPECT_TRUE(read_document_facts({}, metadata(3, 1).data()).properties);
  EXPECT_FALSE(read_document_facts({}, metadata(5, 1).data()).properties);
  for (const double date : {0.0, -3.0, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(read_document_facts({}, metadata(4, date).data()).saved_date, std::nullopt) << date;
  }
  const Bytes whole = metadata(4, 1);
  for (std::size_t length = 0; length < 200; ++length) {
    EXPECT_FALSE(read_document_facts({}, whole.prefix(length).data()).properties) << length;
  }
}

TEST(Outline, epsg_codes) {
  struct Case {
    const char* wkt;
    std::int32_t code;
  };
  for (const Case& c : std::initializer_list<Case>{
           {R"(GEOGCS["G",UNIT["Degree",0.017],AUTHORITY["EPSG",4326]])", 4326},
           {R"(PROJCS["P",GEOGCS["G",AUTHORITY["EPSG",4326]],AUTHORITY["EPSG","2180"]])", 2180},
           {R"(PROJCRS["P", ID["EPSG", 25832]])", 25832},
           {R"(PROJCS["P",GEOGCS["G",AUTHORITY["EPSG",4326]]])", 0},
           {R"(PROJCS["P",AUTHORITY["ESRI",102100]])", 0},
           {R"(GEOGCS["a,AUTHORITY["EPSG",1]",UNIT["D",1]])", 0},
           {R"(GEOGCS["G"],VERTCS["V",AUTHORITY["EPSG",5773]])", 0},
           {R"(GEOGCS["G",AUTHORITY["EPSG",-1]])", 0},
           {R"(GEOGCS["G",AUTHORITY["EPSG",99999999999]])", 0},
           {R"(GEOGCS["G",AUTHORITY["EPSG",4326)", 0},
           {"", 0}}) {
    EXPECT_EQ(epsg_code(c.wkt).value_or(0), c.code) << c.wkt;
  }
}

}  // namespace
}  // namespace mxd::test
