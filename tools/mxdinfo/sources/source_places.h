// Where the data of layers is on this machine. qgis/arcmap_documents/sources.py has the same rules.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mxdinfo {

// The components of a path of any system, without empty ones.
using Path_parts = std::vector<std::string>;
Path_parts path_parts(std::string_view path);

// A folder as documents store it, and the same folder here.
struct Path_mapping {
  std::string stored;
  std::string here;
};

// The names in folders. They are read once, and compared without regard to case on every system.
// May be used from several threads.
class Folder_names {
 public:
  Folder_names();
  Folder_names(const Folder_names&) = delete;
  Folder_names& operator=(const Folder_names&) = delete;
  ~Folder_names();

  // The existing path below the folder; "." and ".." are followed. Nothing if there is none.
  std::optional<std::string> find(std::string folder, std::span<const std::string> parts) const;
  // Whether the folder has an entry whose name, in lower case, ends so.
  bool has_ending(const std::string& folder, std::string_view ending) const;

 private:
  struct Cache;
  std::unique_ptr<Cache> cache_;
};

// The place of one document.
struct Document_place {
  // Its folder here, absolute. Empty if it is not known.
  std::string folder;
  // The path of the last save. Empty if it is not known.
  std::string saved_path;
};

struct Found_path {
  std::string path;
  // Found from the document's place, not where the stored path is.
  bool is_relative = false;
};

class Source_places {
 public:
  explicit Source_places(const std::vector<Path_mapping>& mappings);

  // The file or folder of a stored path. Nothing if there is none.
  std::optional<Found_path> find(const std::string& stored, bool is_relative,
                                 const Document_place& document) const;
  // Where the path should be: mapped, or as stored.
  std::string expected(const std::string& stored) const;
  const Folder_names& names() const { return names_; }

 private:
  struct Folded_mapping {
    Path_parts stored;
    std::string here;
  };
  struct Mapped_path {
    std::string folder;
    Path_parts rest;
  };

  std::optional<Mapped_path> mapped(const Path_parts& parts) const;
  // As mapped, or where it was stored if that is a path of this system.
  std::optional<std::string> find_there(const std::string& stored) const;
  std::optional<std::string> find_from_saved_folder(const Path_parts& parts,
                                                    const Document_place& document) const;
  std::optional<std::string> find_near_document(const Path_parts& parts,
                                                const Document_place& document) const;

  // The longest first.
  std::vector<Folded_mapping> mappings_;
  Folder_names names_;
};

}  // namespace mxdinfo
