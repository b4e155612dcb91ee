#include "core/tmxd_obj.h"

#include "core/text_dump.h"

namespace mxd {

void Tmxd_obj::dump_fields(std::string& out, int indent, int step) const {
  Dump_field_writer writer(out, indent, step);
  describe(writer);
}

void Tmxd_obj::write_fields_xml(Tmxd_xml_node element) const {
  Xml_field_writer writer(element);
  describe(writer);
}

void Tmxd_obj::dump_object_text(std::string& out, int indent, int step) const {
  out.clear();
  append_object_text(out, indent, step);
}

void Tmxd_obj::append_object_text(std::string& out, int indent, int step) const {
  dump_line_text(out, indent, type_name(), "{");
  dump_line_int(out, indent + step, "number", number);
  dump_line_int(out, indent + step, "reserve", reserve);
  dump_line_int(out, indent + step, "version", version);
  dump_fields(out, indent + step, step);
  out.append(dump_indent(indent)).append("}\n");
}

void Tmxd_obj::write_object_xml(Tmxd_xml_node parent, Xml_name name) const {
  const Tmxd_xml_node outer = xml_add_node(parent, name);
  const Tmxd_xml_node element = xml_add_node(outer, Xml_name(type_name()));
  if (!exists) {
    xml_add_bool(element, "exists", false);
    return;
  }
  xml_add_int(element, "number", number);
  xml_add_int(element, "reserve", reserve);
  xml_add_int(element, "version", version);
  if (repeat) {
    xml_add_bool(element, "repeat", true);
  } else {
    write_fields_xml(element);
  }
}

}  // namespace mxd
