#include "seeds.h"

#include <algorithm>

#include "hostile_streams.h"
#include "storage/compound_file.h"
#include "support/class_table.h"
#include "support/damaged_files.h"
#include "support/outline_records.h"
#include "support/sample_document.h"
#include "support/temp_file.h"

namespace mxd::fuzz {
namespace {

using namespace mxd::test;

Bytes with_page(const Bytes& renderer, const Class_id& page) {
  return in_layer(Bytes(renderer).guid(page.guid).wide("N").f64s({2, 1}));
}

Seeds renderer_seeds() {
  const Bytes values =
      Bytes().i32(2).add(unique_value("x", 0, 0, 1)).add(unique_value("y", -1, -1, 2)).wide("z");
  const Bytes ranges = Bytes().i32(2).f64s({1, 2}).f64s({0, 1});
  const auto unique = [&](int names, int version, Main main) {
    return with_page(unique_value_renderer(names, version, main, values),
                     Tmxd_unique_value_property_page::clsid)
        .data();
  };
  return {{"simple_renderer", in_simple_renderer(line_symbol(5, 1.5)).data()},
          {"unique_values_3", unique(1, 3, Main::absent)},
          {"unique_values_4", unique(3, 4, Main::present)},
          {"unique_values_again", unique(2, 4, Main::reference)},
          {"class_breaks",
           with_page(class_breaks_renderer(30, ranges), Tmxd_graduated_color_property_page::clsid)
               .data()}};
}

Byte_run cut(Byte_run bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

}  // namespace

Byte_run maps_stream(const Wide_string& document) {
  Tmxd_stream_m stream;
  static_cast<void>(read_named_stream(document, from_ascii("Maps"), stream));
  return {stream.bytes().begin(), stream.bytes().end()};
}

Seeds stream_seeds() {
  Seeds seeds = renderer_seeds();
  for (const Class_row& row : class_table()) {
    seeds.emplace_back(row.type, in_simple_renderer(record(row, 5)).data());
  }
  const Byte_run sample = maps_stream(Temp_file(sample_document()).path());
  seeds.emplace_back("sample", sample);
  seeds.emplace_back("sample_cut", cut(sample, sample.size() / 2));
  seeds.emplace_back("no_map", Bytes().i32(1).counting(20).data());
  return seeds;
}

Seeds outline_seeds() {
  const Bytes symbol = text_symbol(70, rgb_color(71, 50), font("Arial", 8, 8.25));
  const Bytes labelled = definition_query(text("A > 1"), rgb_color(72, 10))
                             .add(labels(73, -1, label_class(74, text("[Name]"), symbol)));
  const Bytes group = listed_group(
      2, "group",
      member_list({named_feature_layer(3, "a", labelled), listed_group(8, "in", member_list({}))}));
  const Bytes base =
      basemap(10, "base", member_list({foreign_layer(11, map_service_id, "service")}));
  const Bytes ranges = Bytes().i32(2).f64s({1, 2}).f64s({0, 1});
  const Bytes breaks = feature_layer(20, class_breaks_renderer(23, ranges)
                                             .add(normalization(number_format(25), text("AREA"), 0))
                                             .guid(Tmxd_graduated_color_property_page::clsid.guid)
                                             .wide("N")
                                             .f64s({2, 1}));
  const Bytes extent = envelope(80, {1, 2, 3, 4}).add(its_system()).add(envelope(81, {1, 2, 3, 4}));
  const auto stream = [&](const Bytes& before, const Bytes& list) {
    return Bytes().i32(1).add(listed_map(1, "map", Bytes(before).add(list).add(extent))).data();
  };
  const Bytes list = map_list(
      {group, base, image_service(15, "image"), breaks, foreign_layer(16, unheard_of_id, "tiles")});
  return {{"list", stream(before_list(), list)},
          {"list_without_system", stream(text("").null_object(), list)},
          {"list_to_search", stream(before_list(5), list)},
          {"list_elsewhere", stream(before_list(), Bytes().i32(3))}};
}

Seeds report_seeds() {
  Seeds seeds;
  for (const Hostile_stream& stream : report_streams()) {
    std::string name = stream.name;
    std::ranges::replace(name, ' ', '_');
    seeds.emplace_back(name, stream.make(10).data());
  }
  return seeds;
}

Seeds compound_seeds() {
  const auto file = [] {
    return Compound_file()
        .storage("Layout")
        .stream("Mini", noise(700))
        .stream("Maps", noise(5000))
        .stream("Other", noise(100, 2));
  };
  Seeds seeds = {{"whole", file().build()},
                 {"fragmented", file().fragmented(3).build()},
                 {"cutoff_high", file().cutoff(6000).fragmented(2).build()},
                 {"cutoff_low", file().cutoff(64).build()},
                 {"signature", file().signature("notOLE!!").build()},
                 {"blanks", Compound_file().stream(" mAPS ", noise(600)).build()},
                 {"unused", file().unused_entry("Maps").build()},
                 {"cut", cut(file().build(), 3000)},
                 {"empty", {}}};
  for (const auto& [name, damaged, kept] : damaged_files(9216)) {
    std::string file_name = name;
    std::ranges::replace_if(
        file_name, [](char c) { return c == ' ' || c == ':'; }, '_');
    seeds.emplace_back(file_name, damaged.build());
  }
  for (const int offset : {0x30, 0x38, 0x3C, 0x44, 0x4C}) {
    for (const std::uint32_t value : {0U, 1U, 0x7FFFFFFFU, free_sector}) {
      seeds.emplace_back("header_" + std::to_string(offset) + "_" + std::to_string(value),
                         file().header(static_cast<Header_field>(offset), value).build());
    }
  }
  return seeds;
}

Seeds document_seeds() {
  Seeds seeds = {{"sample", sample_document()}};
  for (const auto& [name, bytes] : stream_seeds()) {
    seeds.emplace_back(name + "_file", Compound_file().stream("Maps", bytes).build());
  }
  return seeds;
}

Seeds search_seeds() {
  Seeds seeds;
  for (const auto& [name, bytes] : stream_seeds()) {
    Bytes choices = Bytes().counting(4).counting(4, 20).u16(0).u16(-1);
    choices.raw({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    seeds.emplace_back(name, choices.data());
  }
  seeds.emplace_back("period", Bytes().counting(12, 0).raw(std::string(300, '\7')).data());
  return seeds;
}

Seeds text_seeds() {
  Bytes all_bytes;
  for (int i = 1; i < 256; ++i) all_bytes.u8(i);
  return {{"all_bytes", all_bytes.data()},
          {"wide", Bytes().wide("  Rivers\r\n").data()},
          {"narrow", Bytes().narrow("GEOGCS[\"x\"]").data()},
          {"odd", Bytes().i32(7).counting(7).data()},
          {"number", Bytes().f64(1234567.5).data()},
          {"guid", Bytes().raw("7914e5f9-c892-11d0-8bb6-080009ee4e41").data()},
          {"utf8", Bytes().raw("\xD0\x9A\xF0\x9F\x97\xBA\xC0\xAF").data()}};
}

std::vector<Byte_run> markers() {
  return {Bytes().i32(13).data(),
          Bytes().u16(0xFFFF).data(),
          Bytes().i32(9999).data(),
          Bytes().i32(9998).data(),
          Bytes().i32(-1).data(),
          Bytes().i32(-2).data(),
          Bytes().i32(0x7FFFFFFF).data(),
          Bytes().zeros(16).data(),
          Bytes().raw(std::string_view("M\0a\0p\0s", 7)).data()};
}

}  // namespace mxd::fuzz
