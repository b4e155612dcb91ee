// Which bytes the records of renderers and legends take, whole and damaged.
#include <numeric>

#include "rendering/property_page.h"
#include "support/decoded.h"
#include "support/rendering_records.h"

namespace mxd::test {
namespace {

TEST(Legend_group, claimed_counts) {
  const Bytes item = legend_class(7, 2, "a");
  const Bytes cut = legend_class(8, 2, "b").prefix(40);
  const Bytes again = Bytes().add(item).reference(Tmxd_legend_class::clsid, 7);
  expect_decoded<Tmxd_legend_group>(
      "rendering", "legend, claimed counts",
      {{"none", legend_group(5, "", 0, item)},
       {"negative", legend_group(5, "", -1, item)},
       {"a reference stays empty", legend_group(5, "", 2, again)},
       {"more than there are", legend_group(5, "", 0x7FFFFFFF, item)},
       {"another class", legend_group(5, "", 2, Bytes().add(item).add(legend_group(9, "")))},
       {"the second one is cut", legend_group(5, "", 2, Bytes().add(item).add(cut))}});
}

// A class that was thrown away, at a second read or for a failure, can still be referred to.
TEST(Legend_group, dropped_classes_live_until_the_load_ends) {
  const Bytes failing = object<Tmxd_legend_class>(10, 1, line_symbol(11, 4).i32(-1));
  Bytes record = legend_group(5, "", 1, legend_class(7, 1, "", line_symbol(6, 0.5)));
  record.add(legend_group(9, "", 1, failing));
  const std::size_t references = record.size();
  record.reference(simple_line_id, 6).reference(simple_line_id, 11);
  Decoder decoder(record);
  Tmxd_legend_group group;
  ASSERT_TRUE(read_object(group, decoder.stream, -1, -1));
  EXPECT_FALSE(read_object(group, decoder.stream, -1, -1));
  EXPECT_TRUE(group.legend_classes.empty());
  ASSERT_TRUE(decoder.stream.seek(references));
  for (const char* width : {"width = 0.5\n", "width = 4\n"}) {
    Tmxd_symbol_slot symbol;
    ASSERT_TRUE(symbol.read(decoder.stream, -1));
    EXPECT_NE(dump_of(*symbol.get()).find(width), std::string::npos);
  }
}

TEST(Legend_class, run_is_filled_up_with_zeros) {
  std::vector<Decode_case> cases;
  for (const int version : {0, 1, 2, 3}) {
    const Bytes whole = legend_class(7, version, "a");
    cases.push_back({"version " + std::to_string(version), whole.prefix(whole.size() - 1)});
  }
  expect_decoded<Tmxd_legend_class>("rendering", "legend class, cut run", cases);
}

// A class without a symbol takes the next one before the limit, and goes on after that. Where the
// symbol is out of reach, the null id is an empty label and the first raw bytes.
TEST(Legend_class, symbol_is_searched_for_up_to_the_limit) {
  const Bytes before = object<Tmxd_legend_class>(7, 1, Bytes().null_object().u8(9));
  const Bytes record = Bytes().add(before).add(line_symbol(8, 3)).wide("label").counting(22);
  const auto symbol_at = static_cast<std::int64_t>(before.size());
  expect_decoded<Tmxd_legend_class>("rendering", "legend class, limits",
                                    {{"none", record},
                                     {"after the symbol's id", record, symbol_at + 16},
                                     {"in the symbol's id", record, symbol_at + 15}});
}

// The slot of a renderer and that of a page share the search's rules, at odd places too.
TEST(Renderer_slot, finds_what_begins_before_the_limit) {
  constexpr std::size_t odd = 3;
  const Bytes renderer = simple_renderer(4);
  const Bytes page = Bytes().guid(Tmxd_graduated_color_property_page::clsid.guid);
  for (const std::int64_t limit :
       {std::int64_t{-1}, std::int64_t{odd + 16}, std::int64_t{odd + 15}}) {
    const bool found = limit != odd + 15;
    Decoder renderers(Bytes().zeros(odd).add(renderer).zeros(16));
    Tmxd_renderer_slot renderer_slot;
    EXPECT_TRUE(renderer_slot.read(renderers.stream, limit));
    EXPECT_EQ(renderer_slot.get() != nullptr, found);
    EXPECT_EQ(renderers.stream.tell(), found ? odd + renderer.size() : 0);

    Decoder pages(Bytes().zeros(odd).add(page).zeros(16));
    EXPECT_TRUE(skip_property_page(pages.stream, limit));
    EXPECT_EQ(pages.stream.tell(), found ? odd + 16 : 0);
  }
}

// The limit reaches the classes of every legend that a renderer holds.
TEST(Renderer_slot, no_legend_takes_a_symbol_from_behind_the_limit) {
  const Bytes legend = legend_group(5, "", 1, legend_class(7, 2, "a"));
  const Bytes breaks = Bytes().wide("").wide("").i32(0).zeros(8);
  const Bytes unique = Bytes().i32(0).zeros(13).i32(0);
  for (const Bytes& renderer :
       {object<Tmxd_simple_renderer>(1, 1, legend),
        object<Tmxd_class_breaks_renderer>(1, 1, Bytes().add(breaks).add(legend)),
        object<Tmxd_unique_value_renderer>(1, 3, Bytes().add(unique).add(legend).i32(0)),
        object<Tmxd_unique_value_renderer>(
            1, 3, Bytes().add(unique).add(legend_group(4, "")).add(legend).zeros(20))}) {
    Decoder decoder(Bytes().add(renderer).add(line_symbol(9, 1)));
    Tmxd_renderer_slot slot;
    EXPECT_TRUE(slot.read(decoder.stream, static_cast<std::int64_t>(renderer.size())));
    EXPECT_EQ(dump_of(*slot.get()).find("mxd_simple_line_symbol"), std::string::npos);
  }
}

TEST(Renderer_slot, second_read_replaces_the_first) {
  const Bytes last = simple_renderer(8);
  Decoder decoder(simple_renderer(4)
                      .reference(Tmxd_simple_renderer::clsid, 4)
                      .add(last.prefix(last.size() - 1)));
  Tmxd_renderer_slot slot;
  const auto label = [&] {
    return dynamic_cast<const Tmxd_simple_renderer&>(*slot.get()).legend_group.label;
  };
  ASSERT_TRUE(slot.read(decoder.stream, -1));
  EXPECT_EQ(label(), from_ascii("Wells"));
  // Gone from the slot, not from the load; but renderers are not copied.
  ASSERT_TRUE(slot.read(decoder.stream, -1));
  EXPECT_EQ(slot.get()->repeat, 1);
  EXPECT_EQ(label(), from_ascii(""));
  // One that fails stays in the slot.
  EXPECT_FALSE(slot.read(decoder.stream, -1));
  EXPECT_EQ(slot.get()->number, 8);
  EXPECT_EQ(decoder.errors.lines.size(), 2u);
}

TEST(Unique_value_renderer, reads_what_count_and_version_say) {
  const Bytes values = Bytes().i32(1).add(unique_value("v", 1, 2, 3));
  for (const int names : {-1, 0, 1, 2, 3, 4}) {
    for (const int version : {3, 4}) {
      for (const Main main : {Main::absent, Main::zeros, Main::present, Main::reference}) {
        SCOPED_TRACE(testing::Message() << names << " names, version " << version << ", main "
                                        << static_cast<int>(main));
        const Bytes record = unique_value_renderer(names, version, main, values);
        Decoder decoder(record);
        Tmxd_unique_value_renderer renderer;
        ASSERT_TRUE(read_object(renderer, decoder.stream, -1, -1));
        EXPECT_EQ(decoder.stream.tell(), record.size());
        EXPECT_EQ(renderer.propname1, from_ascii(names >= 1 ? "TYPE" : ""));
        EXPECT_EQ(renderer.propname2, from_ascii(names >= 2 ? "CLASS" : ""));
        EXPECT_EQ(renderer.propname3, from_ascii(names >= 3 ? "KIND" : ""));
        EXPECT_EQ(renderer.ushort10, version >= 4 ? 65535 : 0);
        EXPECT_EQ(renderer.main_leg_grp.exists, main >= Main::present);
        EXPECT_EQ(renderer.main_leg_grp.repeat, main == Main::reference);
        EXPECT_EQ(renderer.main_leg_grp.label, from_ascii(main == Main::present ? "main" : ""));
        EXPECT_EQ(renderer.bytes3.size(), main < Main::present ? 0u : version < 4 ? 16u : 18u);
        ASSERT_EQ(renderer.unique_values.size(), 1u);
        // Zeros that are cut short are read as a count of no values.
        if (names == 3 && main != Main::zeros)
          expect_prefixes_fail<Tmxd_unique_value_renderer>(record);
      }
    }
  }
}

TEST(Unique_values, items) {
  const Bytes plain = unique_value("p", 1, 2, 3);
  const Bytes marked = unique_value("m", -1, -1, 3);
  const Bytes half_marked = unique_value("a", -1, 0, 0).add(unique_value("b", 0, -1, 0));
  const auto values = [](int count, const Bytes& items) {
    return unique_value_renderer(0, 3, Main::absent, Packed(count, items));
  };
  expect_decoded<Tmxd_unique_value_renderer>(
      "rendering", "values",
      {{"none", values(0, plain)},
       {"negative count", values(-5, plain)},
       {"extra string is passed over", values(2, Packed(marked, "x", plain))},
       {"extra string missing at the end", values(2, Packed(plain, marked))},
       {"extra string of an odd length", values(2, Packed(marked, 3, plain))},
       {"only one of the marks", values(3, Packed(half_marked, plain))},
       {"marked, but cut in its last number", values(2, Packed(plain, marked.prefix(17)))},
       {"more than there are", values(0x7FFFFFFF, Packed(plain, plain))},
       {"after no default symbol",
        Packed(unique_value_renderer(1, 4, Main::present, Packed(0), Bytes().zeros(16)),
               line_symbol(9, 1))}});
}

// A value costs more than its bytes.
TEST(Unique_values, end_at_the_budget) {
  const Bytes record = Bytes().i32(1).add(unique_value("v", 1, 2, 3));
  Decoder decoder(record);
  EXPECT_TRUE(decoder.load.spend(decoder.load.budget().limit() - record.size()));
  Tmxd_unique_values values;
  EXPECT_FALSE(read_unique_values(values, decoder.stream));
}

TEST(Ranges, claimed_counts) {
  std::vector<double> many(2 * 9999);
  std::iota(many.begin(), many.end(), 0.0);
  const std::vector<double> some = {10, 20, 1, 11};
  struct Case {
    std::int64_t count;
    std::vector<double> bounds;
    bool ok;
    std::int32_t size;
    double last_min;
    double last_max;
  };
  const Case cases[] = {
      {0, some, true, 0, 0, 0},
      {2, some, true, 2, 11, 20},
      {9999, many, true, 9999, 19997, 9998},
      {10000, many, false, 0, 0, 0},
      {-1, some, false, 0, 0, 0},
      {3, {10, 20}, false, 3, 0, 0},
      {3, {10, 20, 30, 1}, false, 3, 0, 30},
  };
  Tmxd_ranges ranges;
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.count << " of " << c.bounds.size());
    Bytes record;
    record.i32(c.count);
    for (const double bound : c.bounds) record.f64(bound);
    Decoder decoder(record);
    EXPECT_EQ(ranges.read(decoder.stream), c.ok);
    EXPECT_EQ(ranges.size(), c.size);
    EXPECT_EQ(ranges.min_bnd(c.size - 1), c.last_min);
    EXPECT_EQ(ranges.max_bnd(c.size - 1), c.last_max);
    EXPECT_EQ(ranges.min_bnd(c.size), 0.0);
  }
  ranges.min_bounds.pop_back();
  EXPECT_EQ(ranges.size(), 2);
  EXPECT_EQ(ranges.max_bnd(2), 0.0);
}

// What a count claims is not taken from memory unless the load may still spend it.
TEST(Ranges, end_at_the_budget) {
  Decoder decoder(Bytes().i32(9999));
  const Load_budget& budget = decoder.load.budget();
  EXPECT_TRUE(decoder.load.spend(budget.limit() - 2 * 9999 * sizeof(double)));
  Tmxd_ranges ranges;
  EXPECT_FALSE(ranges.read(decoder.stream));
  EXPECT_TRUE(budget.exhausted());
  EXPECT_EQ(ranges.max_bounds.capacity(), 0u);
}

}  // namespace
}  // namespace mxd::test
