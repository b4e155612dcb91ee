// make_seeds FOLDER [DOCUMENT...]: writes what the fuzzers start from, a folder per target, and a
// dictionary; with documents, their streams as well.
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "class_ids.h"
#include "seeds.h"
#include "storage/unicode.h"

namespace {

namespace fs = std::filesystem;

void write_file(const fs::path& path, std::span<const std::uint8_t> bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.exceptions(std::ios::failbit);
  file.flush();
}

void write_seeds(const fs::path& folder, const mxd::fuzz::Seeds& seeds) {
  fs::create_directories(folder);
  for (const auto& [name, bytes] : seeds) write_file(folder / name, bytes);
}

std::string dictionary() {
  std::string text;
  const auto add = [&](const mxd::Byte_run& bytes) {
    text.append("\"\\x").append(mxd::bytes_to_hex(bytes, "\\x")).append("\"\n");
  };
  for (const mxd::Guid& id : mxd::fuzz::all_class_ids()) {
    const mxd::Guid stored = mxd::swap_guid_byte_order(id);
    add({stored.bytes.begin(), stored.bytes.end()});
  }
  for (const mxd::Byte_run& marker : mxd::fuzz::markers()) add(marker);
  return text;
}

}  // namespace

int main(int count, char** arguments) {
  using namespace mxd::fuzz;
  if (count < 2) return 2;
  const fs::path folder = arguments[1];
  write_seeds(folder / "document", document_seeds());
  Seeds streams = stream_seeds();
  for (int i = 2; i < count; ++i) {
    streams.emplace_back("document_" + std::to_string(i),
                         maps_stream(mxd::path_from_bytes(arguments[i])));
  }
  write_seeds(folder / "stream", streams);
  const Seeds outlines = outline_seeds();
  streams.insert(streams.end(), outlines.begin(), outlines.end());
  write_seeds(folder / "outline", streams);
  const Seeds reports = report_seeds();
  streams.insert(streams.end(), reports.begin(), reports.end());
  write_seeds(folder / "report", streams);
  write_seeds(folder / "compound", compound_seeds());
  write_seeds(folder / "search", search_seeds());
  write_seeds(folder / "text", text_seeds());
  std::ofstream(folder / "dictionary.txt") << dictionary();
  return 0;
}
