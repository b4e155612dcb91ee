// Documents made to cost much. Each grows to twice and four times its size, and whatever is counted
// must not grow faster; nothing here depends on a clock.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <map>

#include "measured_load.h"
#include "rendering/property_page.h"
#include "support/damaged_files.h"
#include "support/document_records.h"
#include "support/temp_file.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

constexpr std::int32_t endless = 0x7FFFFFFF;

Bytes repeated(int count, const Bytes& bytes) {
  Bytes result;
  for (int i = 0; i < count; ++i) result.add(bytes);
  return result;
}

// ---- Streams ----

Bytes line_template(int number, std::int64_t claimed, int items) {
  return Bytes().object(
      Tmxd_line_template::clsid, number, 1,
      Bytes().f64(1).i32(claimed).add(repeated(items, Bytes().f64s({0.123456, 1e-300}))));
}

// Its template comes last; what would follow is left out, so that the line fails.
Bytes cartographic_line(int number, const Bytes& its_template) {
  return Bytes().object(Tmxd_cartographic_line_symbol::clsid, number, 1,
                        Bytes().i32(0).i32(0).f64(1).u8(0).f64(0).add(its_template));
}

Bytes line_fill(int number, const Bytes& pattern, const Bytes& outline) {
  return Bytes().object(Tmxd_line_fill_symbol::clsid, number, 1,
                        Bytes().f64s({1, 2}).add(pattern).add(outline).f64s({3, 4, 5}).trailer());
}

Bytes endless_template(int n) {
  return in_simple_renderer(cartographic_line(1, line_template(2, endless, n)));
}

Bytes endless_values(int n) {
  const Bytes values =
      Bytes().i32(endless).add(repeated(n, unique_value("value", -1, -1, 0).wide("")));
  return in_layer(unique_value_renderer(1, 4, Main::present, values));
}

Bytes many_ranges(int n) {
  const Bytes ranges = Bytes().i32(9999).add(Bytes().zeros(8 * 2 * 9999));
  Bytes layers;
  for (int i = 0; i < n; ++i)
    layers.add(feature_layer(10 * i, class_breaks_renderer(10 * i + 5, ranges)));
  return in_map(layers);
}

// Every layer has a template that goes on to the end of the stream.
Bytes overlapping(int n) {
  Bytes layers;
  for (int i = 0; i < n; ++i) {
    const Bytes line = cartographic_line(10 * i + 5, line_template(10 * i + 6, endless, 1));
    layers.add(feature_layer(10 * i, simple_renderer(10 * i + 3, line)));
  }
  return in_map(layers);
}

Bytes in_legend(const Bytes& classes) {
  return in_layer(Bytes().object(
      Tmxd_simple_renderer::clsid, 60000, 1,
      Bytes().add(line_symbol(60002, 1)).add(legend_group(60001, "", endless, classes))));
}

// Each fill refers twice to the one before.
Bytes doubling_references(int n) {
  Bytes classes = legend_class(10001, 2, "", line_symbol(1, 1));
  for (int i = 2; i <= n; ++i) {
    const Bytes again = Bytes().reference(
        i == 2 ? Tmxd_simple_line_symbol::clsid : Tmxd_line_fill_symbol::clsid, i - 1);
    classes.add(legend_class(10000 + i, 2, "", line_fill(i, again, again)));
  }
  return in_legend(classes);
}

// Lines without a color: each searches for one up to the far end of the layer.
Bytes far_searches(int n) {
  Bytes classes;
  for (int i = 0; i < n; ++i) classes.add(legend_class(2 * i + 1, 2, "", line_symbol(2 * i, 1)));
  return in_legend(classes.zeros(static_cast<std::size_t>(n) * 100));
}

Bytes decoys(int n, const Class_id& id) {
  return in_map(repeated(n, Bytes().guid(id.guid)));
}

// Ids of the same last bytes share words: every word is looked at once for each.
Bytes shared_words(int n) {
  const Guid stored = swap_guid_byte_order(Tmxd_simple_line_symbol::clsid.guid);
  Bytes words;
  for (int i = 0; i < n; ++i) {
    for (std::size_t k = 7; k < 15; ++k) words.u8(stored.bytes[k]);
  }
  return in_map(words);
}

Bytes empty_maps(int n) {
  Bytes maps;
  for (int i = 0; i < n; ++i) maps.add(Bytes().object(Tmxd_map::clsid, i, 7, Bytes().wide("")));
  return Bytes().i32(n).add(maps);
}

Bytes hash_line(int number, const Bytes& its_line) {
  return Bytes().object(Tmxd_hash_line_symbol::clsid, number, 1,
                        Bytes().f64(1).i32(0).i32(0).f64(1).u8(0).f64(0).add(its_line));
}

// Each line's slot finds the next line.
Bytes nested(int n) {
  Bytes lines;
  for (int i = 0; i < n; ++i) lines.add(hash_line(i, {}));
  return in_simple_renderer(lines);
}

// A symbol of 90 levels, and references to it: deep indents, many elements.
Bytes deep_copies(int n) {
  constexpr int levels = 90;
  Bytes deep = line_symbol(1, 1);
  for (int i = 2; i <= levels; ++i) {
    deep = hash_line(i, deep).null_object().counting(16).trailer().u8(0).f64s({0, 0});
  }
  const Bytes again = Bytes().reference(Tmxd_hash_line_symbol::clsid, levels);
  Bytes classes;
  for (int i = 0; i < n; ++i) classes.add(legend_class(1000 + i, 2, "", again));
  return in_layer(Bytes().object(Tmxd_simple_renderer::clsid, 60000, 1,
                                 Bytes(deep).add(legend_group(60001, "", n, classes))));
}

// Each byte becomes six in the XML.
Bytes escapes(int n) {
  Bytes maps;
  for (int i = 0; i < n; ++i) {
    maps.add(Bytes()
                 .object(Tmxd_map::clsid, 2 * i, 7, Bytes().wide(""))
                 .object(Tmxd_geographic_coordinate_system::clsid, 2 * i + 1, 1,
                         Bytes().narrow(std::string(9999, '"'))));
  }
  return Bytes().i32(n).add(maps);
}

// ---- Files ----

Compound_file plain(int n) {
  const auto size = static_cast<std::size_t>(n) * 512;
  return Compound_file().stream("Mini", noise(700)).stream("Maps", noise(size));
}

Compound_file small_pieces(int n) {
  return plain(n).cutoff(0x7FFFFFFF);
}

Byte_run decoy_entries(int n) {
  Compound_file file;
  for (int i = 0; i < 4 * n; ++i) file.unused_entry("decoy");
  return file.stream("Maps", noise(5000)).build();
}

struct Row {
  std::string name;
  int n;
  std::function<Byte_run(int n)> make;
  bool exhausts = false;
};

template <Bytes (*make)(int)>
Byte_run bytes_of(int n) {
  return make(n).data();
}

const std::vector<Row> stream_rows = {
    {"template without end", 2000, bytes_of<endless_template>},
    {"values without end", 500, bytes_of<endless_values>},
    {"ranges", 2, bytes_of<many_ranges>},
    {"nested reads", 100, bytes_of<nested>},
    {"overlapping layers", 250, bytes_of<overlapping>, true},
    {"references to references", 25, bytes_of<doubling_references>, true},
    {"legend without end, searches to a far limit", 500, bytes_of<far_searches>},
    {"layer ids", 1000, [](int n) { return decoys(n, Tmxd_feature_layer::clsid).data(); }},
    {"map ids", 1000, [](int n) { return decoys(n, Tmxd_map::clsid).data(); }},
    {"shared words", 10000, bytes_of<shared_words>},
    {"empty maps", 1000, bytes_of<empty_maps>},
    {"deep copies", 20, bytes_of<deep_copies>},
    {"escapes", 10, bytes_of<escapes>},
};

const std::vector<Damaged_file>& damaged(int n) {
  static std::map<int, std::vector<Damaged_file>> files;
  const auto [found, added] = files.try_emplace(n);
  if (added) found->second = damaged_files(static_cast<std::size_t>(n) * 512);
  return found->second;
}

std::vector<Row> file_rows() {
  std::vector<Row> result = {
      {"intact", 100, [](int n) { return plain(n).build(); }},
      {"small pieces", 100, [](int n) { return small_pieces(n).fragmented(3).build(); }},
      {"crossing chains", 100,
       [](int n) { return plain(n).link("Mini", 0, 0).link("Maps", 9, 1).build(); }},
      {"decoy entries", 100, decoy_entries},
  };
  const std::size_t count = damaged(200).size();
  for (std::size_t i = 0; i < count; ++i) {
    result.push_back(
        {damaged(200)[i].name, 200, [=](int n) { return damaged(n)[i].file.build(); }});
  }
  return result;
}

// Allows a quarter more for memory that grows in steps, and a constant.
void expect_no_faster(const char* what, std::uint64_t once, std::uint64_t now, unsigned times) {
  EXPECT_LE(now, times * (once + once / 4) + 4096) << what;
}

void print(const Row& row, int n, std::size_t size, const Work& work) {
  std::printf(
      "| %s | %d | %zu | %llu | %llu | %llu | %llu | %llu | %llu |\n", row.name.c_str(), n, size,
      static_cast<unsigned long long>(work.bytes_read), static_cast<unsigned long long>(work.spent),
      static_cast<unsigned long long>(work.objects),
      static_cast<unsigned long long>(work.search_steps),
      static_cast<unsigned long long>(work.output), static_cast<unsigned long long>(work.memory));
}

void expect_linear(const Row& row, Work (*measure)(const Byte_run&)) {
  SCOPED_TRACE(row.name);
  Work once;
  for (const int times : {1, 2, 4}) {
    const Byte_run bytes = row.make(times * row.n);
    const Work work = measure(bytes);
    print(row, times * row.n, bytes.size(), work);
    EXPECT_LE(work.spent, work.limit);
    EXPECT_EQ(work.exhausted, row.exhausts);
    if (times == 1) once = work;
    const auto factor = static_cast<unsigned>(times);
    expect_no_faster("bytes read", once.bytes_read, work.bytes_read, factor);
    expect_no_faster("budget", once.spent, work.spent, factor);
    expect_no_faster("objects", once.objects, work.objects, factor);
    expect_no_faster("search steps", once.search_steps, work.search_steps, factor);
    expect_no_faster("error lines", once.errors, work.errors, factor);
    expect_no_faster("output", once.output, work.output, factor);
    expect_no_faster("memory", once.memory, work.memory, factor);
  }
}

TEST(Costs, of_streams_grow_with_their_size) {
  for (const Row& row : stream_rows) expect_linear(row, work_of_stream);
}

TEST(Costs, of_files_grow_with_their_size) {
  for (const Row& row : file_rows()) {
    expect_linear(row, [](const Byte_run& bytes) {
      const Work work = work_of_file(Temp_file(bytes).path());
      EXPECT_LE(work.bytes_read, 2 * bytes.size() + 1024);
      return work;
    });
  }
}

}  // namespace
}  // namespace mxd::fuzz
