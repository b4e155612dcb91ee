// make_seeds FOLDER [DOCUMENT...]: writes what the fuzzers start from, a folder per target, and a
// dictionary; with documents, their streams as well.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <utility>

#include "class_ids.h"
#include "hostile_streams.h"
#include "storage/compound_file.h"
#include "storage/unicode.h"
#include "support/class_table.h"
#include "support/damaged_files.h"
#include "support/listed_sample.h"
#include "support/sample_document.h"
#include "support/temp_file.h"

namespace mxd::fuzz {
namespace {

namespace fs = std::filesystem;
using namespace mxd::test;

using Seeds = std::vector<std::pair<std::string, Byte_run>>;

Byte_run maps_stream(const Wide_string& document) {
  Tmxd_stream_m stream;
  static_cast<void>(read_named_stream(document, from_ascii("Maps"), stream));
  return {stream.bytes().begin(), stream.bytes().end()};
}

// Streams "Maps": one per class, one of everything, and one of every list, label and extent.
Seeds stream_seeds(std::span<char*> documents) {
  Seeds seeds;
  for (const Class_row& row : class_table()) {
    seeds.emplace_back(row.type, in_simple_renderer(record(row, 5)).data());
  }
  const Byte_run sample = maps_stream(Temp_file(sample_document()).path());
  seeds.emplace_back("sample", sample);
  seeds.emplace_back("sample_cut", Byte_run(sample.begin(), sample.begin() + 1500));
  seeds.emplace_back("lists", listed_sample().data());
  seeds.emplace_back("no_map", Bytes().i32(1).counting(20).data());
  for (char* document : documents) {
    seeds.emplace_back(fs::path(document).stem().string(), maps_stream(path_from_bytes(document)));
  }
  return seeds;
}

void add_hostile(Seeds& seeds, const std::vector<Hostile_stream>& streams, int n) {
  for (const Hostile_stream& stream : streams) {
    seeds.emplace_back(stream.name, stream.make(n).data());
  }
}

Seeds compound_seeds() {
  const Compound_file file = Compound_file()
                                 .storage("Layout")
                                 .stream("Mini", noise(700))
                                 .stream("Maps", noise(5000))
                                 .stream("Other", noise(100, 2));
  const Byte_run whole = file.build();
  Seeds seeds = {{"whole", whole},
                 {"fragmented", Compound_file(file).fragmented(3).build()},
                 {"cutoff_high", Compound_file(file).cutoff(6000).fragmented(2).build()},
                 {"cutoff_low", Compound_file(file).cutoff(64).build()},
                 {"unused", Compound_file(file).unused_entry("Maps").build()},
                 {"cut", {whole.begin(), whole.begin() + 3000}},
                 {"empty", {}}};
  for (const auto& [name, damaged, kept] : damaged_files(9216)) {
    seeds.emplace_back(name, damaged.build());
  }
  return seeds;
}

Seeds document_seeds(const Seeds& streams) {
  Seeds seeds = {{"sample_document", sample_document()}};
  for (const auto& [name, bytes] : streams) {
    seeds.emplace_back(name, Compound_file().stream("Maps", bytes).build());
  }
  return seeds;
}

Seeds search_seeds(const Seeds& streams) {
  Seeds seeds = {{"period", Bytes().counting(12, 0).raw(std::string(300, '\7')).data()}};
  for (const auto& [name, bytes] : streams) {
    Byte_run input = Bytes().counting(4).counting(4, 20).u16(0).u16(-1).data();
    input.insert(input.end(), bytes.begin(), bytes.end());
    seeds.emplace_back(name, input);
  }
  return seeds;
}

Seeds text_seeds() {
  return {{"all_bytes", run(255).data()},
          {"wide", Bytes().wide("  Rivers\r\n").data()},
          {"narrow", Bytes().narrow("GEOGCS[\"x\"]").data()},
          {"odd", Bytes().i32(7).counting(7).data()},
          {"number", Bytes().f64(1234567.5).data()},
          {"guid", Bytes().raw("7914e5f9-c892-11d0-8bb6-080009ee4e41").data()},
          {"utf8", Bytes().raw("\xD0\x9A\xF0\x9F\x97\xBA\xC0\xAF").data()}};
}

// Class ids, and short runs of bytes that decide how a document is read.
std::string dictionary() {
  std::string text;
  const auto add = [&](const Bytes& bytes) {
    text.append("\"\\x").append(bytes_to_hex(bytes.data(), "\\x")).append("\"\n");
  };
  for (const Guid& id : all_class_ids()) add(Bytes().guid(id));
  for (const std::int64_t number : {13, 9998, 9999, -1, -2, 0x7FFFFFFF}) add(Bytes().i32(number));
  add(word(0xFFFF));
  add(Bytes().null_object());
  add(Bytes().raw(std::string_view("M\0a\0p\0s", 7)));
  return text;
}

void write_seeds(const fs::path& folder, const Seeds& seeds) {
  fs::create_directories(folder);
  for (auto [name, bytes] : seeds) {
    std::ranges::replace_if(
        name, [](char c) { return c == ' ' || c == ':'; }, '_');
    std::ofstream file(folder / name, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.flush();
  }
}

void write_all(const fs::path& folder, std::span<char*> documents) {
  Seeds streams = stream_seeds(documents);
  write_seeds(folder / "document", document_seeds(streams));
  write_seeds(folder / "stream", streams);
  write_seeds(folder / "search", search_seeds(streams));
  add_hostile(streams, outline_streams(), 2);
  write_seeds(folder / "outline", streams);
  add_hostile(streams, report_streams(), 10);
  write_seeds(folder / "report", streams);
  write_seeds(folder / "compound", compound_seeds());
  write_seeds(folder / "text", text_seeds());
  std::ofstream(folder / "dictionary.txt") << dictionary();
}

}  // namespace
}  // namespace mxd::fuzz

int main(int count, char** arguments) {
  if (count < 2) return 2;
  mxd::fuzz::write_all(arguments[1], {arguments + 2, arguments + count});
  return 0;
}
