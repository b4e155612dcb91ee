// An inventory: a file with one line of JSON for each document.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mxdinfo {

// Where the line of a document is, and what it says about the file.
struct Inventory_entry {
  // Bytes, as the command line had it.
  std::string path;
  std::uint64_t size = 0;
  // Empty if it is not known.
  std::string modified;
  std::string maps_hash;
  bool is_readable = false;
  bool has_losses = false;
  // Written by this version of mxdinfo.
  bool is_current = false;
  // Of the line in the file; the length is without the line end.
  std::uint64_t position = 0;
  std::size_t length = 0;
};

// Only the places of the lines are kept in memory.
class Inventory_file {
 public:
  // Null if the file cannot be read or is no inventory. An empty file is an inventory.
  static std::unique_ptr<Inventory_file> open(const std::string& path);

  // In the order of the file.
  const std::vector<Inventory_entry>& entries() const { return entries_; }
  // Null if there is no line for the path.
  const Inventory_entry* find(std::string_view path) const;
  // The line with its end; nothing if it cannot be read. May be called from several threads.
  std::optional<std::string> line(const Inventory_entry& entry) const;

 private:
  struct Close_file {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
  };

  explicit Inventory_file(std::FILE* file) : file_(file) {}
  // False if a line is not that of a document.
  bool read_entries();
  bool add_line(std::string_view line, std::uint64_t position);

  mutable std::mutex mutex_;
  std::unique_ptr<std::FILE, Close_file> file_;
  std::vector<Inventory_entry> entries_;
  std::unordered_map<std::string_view, std::size_t> places_;
};

}  // namespace mxdinfo
