#include "document/mxd.h"

#include "document/known_class_ids.h"
#include "storage/compound_file.h"

namespace mxd {

void Tmxd_mxd::clear() {
  filename.clear();
  int1 = 0;
  maps.clear();
}

bool Tmxd_mxd::load(const Wide_string& path, Error_sink& errors) {
  clear();
  Tmxd_stream_m bytes;
  if (read_named_stream(path, widen("Maps"), bytes) == 0) return false;
  Tmxd_mxd_stream stream(bytes, known_class_ids(), errors);
  if (!stream.seek(0) || !read_number(stream, int1) || !read_maps(maps, stream)) return false;
  filename = path;
  return true;
}

bool Tmxd_mxd::save_xml(const Wide_string& path) const {
  Xml_tree tree{Xml_name(type)};
  Tmxd_xml_node& root = tree.root();
  Xml_writer writer(root);
  writer.text("filename", filename);
  writer.integer("int1", static_cast<std::int32_t>(int1));
  writer.list("maps", "map_", maps);
  return xml_save_file(path, root);
}

std::string Tmxd_mxd::dump(int indent, int step) const {
  std::string out;
  for (const auto& map : maps) map->append_object_text(out, indent, step);
  return out;
}

}  // namespace mxd
