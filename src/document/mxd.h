// The document: what one map document file holds.
#pragma once

#include <cstdint>
#include <cstdio>

#include "core/error_sink.h"
#include "document/map.h"
#include "storage/stream.h"

namespace mxd {

class Tmxd_mxd {
 public:
  static constexpr std::string_view type = "mxd_mxd";

  // Forgets what an earlier load left. Maps and nested objects that cannot be read are told to the
  // sink and left out, which is no failure; a failed load leaves no file name.
  bool load(const Wide_string& path, Error_sink& errors);
  // As above, from an open file or from memory; the path is only what the document remembers.
  bool load(Tmxd_stream& file, const Wide_string& path, Error_sink& errors);
  bool save_xml(const Wide_string& path) const;
  void write_xml(std::FILE* file) const;

  // As after construction.
  void clear();

  // The text dumps of the maps, in order.
  std::string dump(int indent, int step) const;

  Wide_string filename;
  // The stream's own count of maps; the maps are found by search all the same.
  std::uint32_t int1 = 0;
  Tmxd_maps maps;

 private:
  bool read(Tmxd_stream_m& bytes, const Wide_string& path, Error_sink& errors);
};

}  // namespace mxd
