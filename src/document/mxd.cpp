#include "document/mxd.h"

#include <memory>

#include "core/read_helpers.h"
#include "document/classes.h"
#include "storage/compound_file.h"
#include "storage/platform.h"

namespace mxd {
namespace {

const Wide_string& stream_name() {
  static const Wide_string name = from_ascii("Maps");
  return name;
}

struct Close_file {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

}  // namespace

void Tmxd_mxd::clear() {
  filename.clear();
  int1 = 0;
  maps.clear();
}

bool Tmxd_mxd::load(const Wide_string& path, Load_observer& observer) {
  clear();
  Tmxd_stream_m bytes;
  if (!read_named_stream(path, stream_name(), bytes)) return false;
  Load load(observer, bytes.get_size());
  return load_maps(bytes, path, load);
}

bool Tmxd_mxd::load(Tmxd_stream& file, const Wide_string& path, Load_observer& observer) {
  clear();
  Tmxd_stream_m bytes;
  if (!read_named_stream(file, stream_name(), bytes)) return false;
  Load load(observer, bytes.get_size());
  return load_maps(bytes, path, load);
}

bool Tmxd_mxd::load_maps(Tmxd_stream_m& bytes, const Wide_string& path, Load& load) {
  clear();
  Tmxd_mxd_stream stream(bytes, known_class_scanner(), load);
  if (!stream.seek(0) || !read_number(stream, int1) || !read_all_found(maps, stream, -1, -1)) {
    return false;
  }
  filename = path;
  return true;
}

bool Tmxd_mxd::save_xml(const Wide_string& path) const {
  const std::unique_ptr<std::FILE, Close_file> file(open_text_output(path));
  if (!file) return false;
  write_xml(file.get());
  return true;
}

void Tmxd_mxd::write_xml(std::FILE* file) const {
  Xml_builder xml(file, Xml_name(type));
  Xml_field_writer writer(xml);
  writer.text("filename", filename);
  writer.integer("int1", static_cast<std::int32_t>(int1));
  writer.list("maps", "map_", maps);
  xml.finish();
}

std::string Tmxd_mxd::dump(int indent, int step) const {
  std::string out;
  for (const Tmxd_map* map : maps) map->append_object_text(out, indent, step);
  return out;
}

}  // namespace mxd
