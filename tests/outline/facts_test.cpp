#include <limits>

#include "outline/epsg_code.h"
#include "outline/outlined.h"

namespace mxd::test {
namespace {

Outlined with_layer(const Bytes& layer, const Bytes& after = {}) {
  return Outlined(one_map(Bytes(before_list()).add(map_list({layer})).add(after)));
}

TEST(Outline, definition_queries) {
  struct Case {
    const char* what;
    Bytes rest;
    const char* query;
  };
  const Bytes query = text("A > 1");
  const Bytes cmyk = Bytes().object(Tmxd_cmyk_color::clsid, 90, 1, Bytes().counting(8));
  const std::vector<Case> cases = {
      {"after no color", definition_query(query), "A > 1"},
      {"after a color", definition_query(query, rgb_color(90, 50)), "A > 1"},
      {"after a color of inks", definition_query(query, cmyk), "A > 1"},
      {"none", definition_query(text("")), ""},
      {"of no length", definition_query(Bytes().wide("")), ""},
      {"after an unknown color",
       definition_query(query, Bytes().object(unheard_of_id, 90, 1, Bytes().counting(29))), "-"},
      {"without its NUL", definition_query(Bytes().wide("A > 1")), "-"},
      {"with a NUL inside", definition_query(Bytes().wide(std::string_view("A\0B\0", 4))), "-"},
      {"too short for its length", definition_query(Bytes().i32(600).counting(20)), "-"},
      {"not stored", {}, "-"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(shown(with_layer(named_feature_layer(10, "a", c.rest)).facts().definition_query),
              c.query);
  }
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
  struct Case {
    const char* what;
    Bytes rest;
    const char* labels;
  };
  const Bytes gray = rgb_color(72, 50);
  const Bytes arial = font("Arial", 8, 8.25);
  const auto one = [&](const Bytes& symbol, const Bytes& expression = text("[N]")) {
    return labels(73, -1, label_class(74, expression, symbol));
  };
  const Bytes two =
      label_class(74, text("[N]"), text_symbol(75, gray, arial))
          .add(label_class(76, text("[M]"),
                           text_symbol(77, rgb_color(78, 100), font("Verdana", 10, 10))));
  const std::vector<Case> cases = {
      {"shown", one(text_symbol(75, gray, arial)), "shown: [N] #646464 Arial 8.00;"},
      {"hidden", labels(73, 0, label_class(74, text("[N]"), Bytes())), "hidden: [N];"},
      {"of two classes", labels(73, -1, two, 2),
       "shown: [N] #646464 Arial 8.00; [M] #FFFFFF Verdana 10.0;"},
      {"of one class, and another that is not counted", labels(73, -1, two),
       "shown: [N] #646464 Arial 8.00;"},
      {"of fewer classes than are counted", labels(73, -1, two, 9),
       "shown: [N] #646464 Arial 8.00; [M] #FFFFFF Verdana 10.0;"},
      {"of no class", labels(73, -1, {}, 0), "shown:"},
      {"with a marker's font before its own",
       one(text_symbol(75, gray, font("Marker", 0, 24).add(arial))),
       "shown: [N] #646464 Arial 8.00;"},
      {"with a marker's font alone", one(text_symbol(75, gray, font("Marker", 1e-312, 24))),
       "shown: [N] #646464;"},
      {"in a font of another alphabet", one(text_symbol(75, gray, font("\xCB\xCE", 8, 8))),
       "shown: [N] #646464  8.00;"},
      {"whose color was stored before",
       one(text_symbol(75, Bytes().reference(Tmxd_rgb_color::clsid, 72), arial)),
       "shown: [N] Arial 8.00;"},
      {"whose symbol was stored before", one(Bytes().reference(text_symbol_id, 75)), "shown: [N];"},
      {"whose expression is no text", one(text_symbol(75, gray, arial), Bytes().i32(-1)), "shown:"},
      {"that may or may not be shown", labels(73, 5, label_class(74, text("[N]"), {})), "-"},
      {"of another version", labels(73, -1, label_class(74, text("[N]"), {}), 1, 3), "-"},
      {"none", {}, "-"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Bytes rest = definition_query(text("")).add(c.rest);
    EXPECT_EQ(labels_text(with_layer(named_feature_layer(10, "a", rest)).facts().labels), c.labels);
  }
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
  struct Case {
    const char* what;
    Bytes after_legend;
    const char* field;
    int ascend;
  };
  constexpr int unknown = -1;
  const Bytes format = number_format(90);
  const Bytes with_id = Bytes()
                            .zeros(18)
                            .u8(1)
                            .guid(unheard_of_id.guid)
                            .u16(0)
                            .add(format)
                            .add(text("AREA"))
                            .u16(-1)
                            .u16(-1)
                            .i32(10000);
  const std::vector<Case> cases = {
      {"ascending", normalization(format, text("AREA"), -1), "AREA", 1},
      {"ascending, too", normalization(format, text(""), 1), "", 1},
      {"descending", normalization(format, text("AREA"), 0), "AREA", 0},
      {"after a class id", with_id, "AREA", 1},
      {"after a longer format", normalization(number_format(90, 60, "7E4F471B"), text("AREA"), 0),
       "AREA", 0},
      {"after something else", normalization(rgb_color(90, 1), text("AREA"), 0), "-", unknown},
      {"of another order", normalization(format, text("AREA"), 2), "-", unknown},
      {"not text", normalization(format, Bytes().wide("AREA"), 0), "-", unknown},
      {"without the number at the end", normalization(format, text("AREA"), 0).u16(0), "AREA", 0},
      {"not stored", Bytes().zeros(20), "-", unknown},
  };
  const Bytes ranges = Bytes().i32(2).f64s({1, 2}).f64s({0, 1});
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Outlined outlined =
        with_layer(feature_layer(20, class_breaks_renderer(23, ranges).add(c.after_legend)));
    EXPECT_EQ(shown(outlined.facts().normalization_field), c.field);
    EXPECT_EQ(outlined.facts().classes_ascend.value_or(false), c.ascend == 1);
    EXPECT_EQ(outlined.facts().classes_ascend.has_value(), c.ascend != unknown);
  }
}

TEST(Outline, extents) {
  struct Case {
    const char* what;
    Bytes after_layers;
    double xmin;
  };
  constexpr double none = -1;
  const Bytes shown = envelope(80, {1, 2, 3, 4});
  const Bytes other = envelope(81, {5, 6, 7, 8});
  const Bytes pair = Bytes(other).add(its_system()).add(shown);
  const Bytes no_system = Bytes().i32(0).null_object();
  const double infinite = std::numeric_limits<double>::infinity();
  const std::vector<Case> cases = {
      {"a pair", Bytes(shown).add(its_system()).add(other), 1},
      {"a pair without coordinate system", Bytes(shown).add(no_system).add(other), 1},
      {"the first of two pairs", Bytes(shown).add(its_system()).add(other).zeros(8).add(pair), 1},
      {"one alone", Bytes(shown).add(its_system()).null_object(), 1},
      {"a pair after one alone",
       Bytes(other).add(its_system()).null_object().add(shown).add(its_system()).add(other), 1},
      {"apart", Bytes(shown).add(its_system()).zeros(5).add(other), none},
      {"of another version", envelope(80, {1, 2, 3, 4}, 2).add(its_system()).add(other), none},
      {"out of order", envelope(80, {3, 2, 1, 4}).add(its_system()).add(other), none},
      {"infinite", envelope(80, {1, 2, infinite, 4}).add(its_system()).add(other), none},
      {"cut", Bytes(shown).add(its_system()).prefix(70), none},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const auto extent =
        with_layer(named_feature_layer(10, "a"), Bytes().counting(9).add(c.after_layers))
            .map()
            .extent;
    EXPECT_EQ(extent ? extent->xmin : none, c.xmin);
  }
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
