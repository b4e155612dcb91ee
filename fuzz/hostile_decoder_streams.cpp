// Streams whose decoding costs much.
#include "hostile_streams.h"
#include "rendering/property_page.h"
#include "support/document_records.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

constexpr std::int32_t endless = 0x7FFFFFFF;

Bytes line_template(int number, std::int64_t claimed, int items) {
  return Bytes().object(
      Tmxd_line_template::clsid, number, 1,
      Bytes().f64(1).i32(claimed).add(repeated(items, Bytes().f64s({0.123456, 1e-300}))));
}

// Its template comes last; what would follow is left out, so that the line fails.
Bytes cartographic_line(int number, const Bytes& its_template) {
  return object<Tmxd_cartographic_line_symbol>(
      number, 1, Bytes().i32(0).i32(0).f64(1).u8(0).f64(0).add(its_template));
}

Bytes line_fill(int number, const Bytes& pattern, const Bytes& outline) {
  return object<Tmxd_line_fill_symbol>(
      number, 1, Bytes().f64s({1, 2}).add(pattern).add(outline).f64s({3, 4, 5}).trailer());
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
  for (int i = 0; i < n; ++i) maps.add(object<Tmxd_map>(i, 7, Bytes().wide("")));
  return Bytes().i32(n).add(maps);
}

Bytes hash_line(int number, const Bytes& its_line) {
  return object<Tmxd_hash_line_symbol>(
      number, 1, Bytes().f64(1).i32(0).i32(0).f64(1).u8(0).f64(0).add(its_line));
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
  const Bytes again = reference<Tmxd_hash_line_symbol>(levels);
  Bytes classes;
  for (int i = 0; i < n; ++i) classes.add(legend_class(1000 + i, 2, "", again));
  return in_layer(
      object<Tmxd_simple_renderer>(60000, 1, Bytes(deep).add(legend_group(60001, "", n, classes))));
}

// Each byte becomes six in the XML.
Bytes escapes(int n) {
  Bytes maps;
  for (int i = 0; i < n; ++i) {
    maps.add(object<Tmxd_map>(2 * i, 7, Bytes().wide(""))
                 .object(Tmxd_geographic_coordinate_system::clsid, 2 * i + 1, 1,
                         Bytes().narrow(std::string(9999, '"'))));
  }
  return Bytes().i32(n).add(maps);
}

}  // namespace

const std::vector<Hostile_stream>& decoder_streams() {
  static const std::vector<Hostile_stream> streams = {
      {"template without end", 2000, endless_template},
      {"values without end", 500, endless_values},
      {"ranges", 2, many_ranges},
      {"nested reads", 100, nested},
      {"overlapping layers", 250, overlapping, true},
      {"references to references", 25, doubling_references, true},
      {"legend without end, searches to a far limit", 500, far_searches},
      {"layer ids", 1000, [](int n) { return decoys(n, Tmxd_feature_layer::clsid); }},
      {"map ids", 1000, [](int n) { return decoys(n, Tmxd_map::clsid); }},
      {"shared words", 10000, shared_words},
      {"empty maps", 1000, empty_maps},
      {"deep copies", 20, deep_copies},
      {"escapes", 10, escapes},
  };
  return streams;
}

}  // namespace mxd::fuzz
