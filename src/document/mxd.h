// The document: the content of one map document file.
#pragma once

#include <cstdint>
#include <cstdio>

#include "core/load_observer.h"
#include "document/map.h"
#include "storage/stream.h"

namespace mxd {

class Tmxd_mxd {
 public:
  static constexpr std::string_view type = "mxd_mxd";

  // Discards the previous content, then loads the file. Objects that cannot be read are reported to
  // the observer and left out; that is not a failure. After a failed load the file name is empty.
  [[nodiscard]] bool load(const Wide_string& path, Load_observer& observer);
  // The same from an open file or from memory; the path is only recorded.
  [[nodiscard]] bool load(Tmxd_stream& file, const Wide_string& path, Load_observer& observer);
  // The same from the bytes of the stream "Maps".
  [[nodiscard]] bool load_maps(Tmxd_stream_m& bytes, const Wide_string& path, Load& load);

  // Returns false if the file cannot be opened. Later write errors are not reported.
  [[nodiscard]] bool save_xml(const Wide_string& path) const;
  // Write errors are left in ferror(file).
  void write_xml(std::FILE* file) const;

  // Restores the state after construction.
  void clear();

  // The text dumps of the maps, in order.
  std::string dump(int indent, int step) const;

  Wide_string filename;
  // The map count stored in the stream. Not used: maps are found by their class id.
  std::uint32_t int1 = 0;
  Tmxd_maps maps;
};

}  // namespace mxd
