#include "document/mxd.h"

#include "document/known_class_scanner.h"
#include "storage/compound_file.h"

namespace mxd {
namespace {

const Wide_string& stream_name() {
  static const Wide_string name = from_ascii("Maps");
  return name;
}

void build_xml(const Tmxd_mxd& document, Tmxd_xml_node root) {
  Xml_field_writer writer(root);
  writer.text("filename", document.filename);
  writer.integer("int1", static_cast<std::int32_t>(document.int1));
  writer.list("maps", "map_", document.maps);
}

}  // namespace

void Tmxd_mxd::clear() {
  filename.clear();
  int1 = 0;
  maps.clear();
}

bool Tmxd_mxd::load(const Wide_string& path, Error_sink& errors) {
  clear();
  Tmxd_stream_m bytes;
  return read_named_stream(path, stream_name(), bytes) != 0 && read(bytes, path, errors);
}

bool Tmxd_mxd::load(Tmxd_stream& file, const Wide_string& path, Error_sink& errors) {
  clear();
  Tmxd_stream_m bytes;
  return read_named_stream(file, stream_name(), bytes) != 0 && read(bytes, path, errors);
}

bool Tmxd_mxd::read(Tmxd_stream_m& bytes, const Wide_string& path, Error_sink& errors) {
  Tmxd_mxd_stream stream(bytes, known_class_scanner(), errors);
  if (!stream.seek(0) || !read_number(stream, int1) || !read_maps(maps, stream)) return false;
  filename = path;
  return true;
}

bool Tmxd_mxd::save_xml(const Wide_string& path) const {
  Xml_tree tree{Xml_name(type)};
  build_xml(*this, tree.root());
  return xml_save_file(path, tree.root());
}

void Tmxd_mxd::write_xml(std::FILE* file) const {
  Xml_tree tree{Xml_name(type)};
  build_xml(*this, tree.root());
  xml_write(file, tree.root());
}

std::string Tmxd_mxd::dump(int indent, int step) const {
  std::string out;
  for (const auto& map : maps) map->append_object_text(out, indent, step);
  return out;
}

}  // namespace mxd
