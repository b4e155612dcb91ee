#include "mxdinfo/inventory/inventory_file.h"

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/output/json_parts.h"

namespace mxdinfo {
namespace {

// The file itself is described before this key. In a text the quotes would be escaped.
constexpr std::string_view key_after_file = ",\"title\":";

std::string bytes_of_hex(const std::string& digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(std::strtol(digits.substr(i, 2).c_str(), nullptr, 16));
  }
  return bytes;
}

std::optional<Inventory_entry> entry_of(std::string_view line) {
  const std::size_t end = line.find(key_after_file);
  if (end == std::string_view::npos) return std::nullopt;
  std::string start(line.substr(0, end));
  const Json json = Json::parse(start += '}', nullptr, false);
  if (!json.is_object() || !json.contains("file") || !json["file"].is_object()) return std::nullopt;
  const Json& file = json["file"];
  Inventory_entry entry;
  entry.path = bytes_of_hex(text_at(file, "path_bytes"));
  if (entry.path.empty()) entry.path = text_at(file, "path");
  const auto size = file.find("size");
  if (entry.path.empty() || size == file.end() || !size->is_number_unsigned()) return std::nullopt;
  entry.size = *size;
  entry.modified = text_at(file, "modified");
  entry.maps_hash = text_at(file, "maps_hash");
  entry.is_readable = json.value("readable", Json()) == true;
  entry.has_losses = !line.ends_with("\"losses\":[]}");
  entry.is_current = json.contains("tool") && json["tool"].is_object() &&
                     text_at(json["tool"], "version") == MXDINFO_VERSION;
  return entry;
}

}  // namespace

std::unique_ptr<Inventory_file> Inventory_file::open(const std::string& path) {
  std::FILE* file = open_for_reading(path);
  if (!file) return nullptr;
  std::unique_ptr<Inventory_file> inventory(new Inventory_file(file));
  if (!inventory->read_entries()) return nullptr;
  for (std::size_t i = 0; i < inventory->entries_.size(); ++i) {
    inventory->places_.emplace(inventory->entries_[i].path, i);
  }
  return inventory;
}

bool Inventory_file::read_entries() {
  constexpr std::size_t piece_size = std::size_t{1} << 20;
  std::vector<char> piece(piece_size);
  std::string line;
  std::uint64_t line_start = 0;
  while (const std::size_t got = std::fread(piece.data(), 1, piece.size(), file_.get())) {
    std::string_view rest(piece.data(), got);
    if (entries_.empty() && line.empty() && !rest.starts_with('{')) return false;
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
      line += rest.substr(0, end);
      rest.remove_prefix(end + 1);
      if (!add_line(line, line_start)) return false;
      line_start += line.size() + 1;
      line.clear();
    }
    line += rest;
  }
  // A last line without an end may be cut, and is left out.
  return std::ferror(file_.get()) == 0 && (line.empty() || !entries_.empty());
}

bool Inventory_file::add_line(std::string_view line, std::uint64_t position) {
  auto entry = entry_of(line);
  if (!entry || !line.ends_with('}')) return false;
  entry->position = position;
  entry->length = line.size();
  entries_.push_back(std::move(*entry));
  return true;
}

const Inventory_entry* Inventory_file::find(std::string_view path) const {
  const auto place = places_.find(path);
  return place == places_.end() ? nullptr : &entries_[place->second];
}

std::optional<std::string> Inventory_file::line(const Inventory_entry& entry) const {
  std::string text(entry.length + 1, '\0');
  const std::scoped_lock lock(mutex_);
  if (!seek_file(file_.get(), entry.position)) return std::nullopt;
  const std::size_t got = std::fread(text.data(), 1, text.size(), file_.get());
  return got == text.size() && text.back() == '\n' ? std::optional(std::move(text)) : std::nullopt;
}

}  // namespace mxdinfo
