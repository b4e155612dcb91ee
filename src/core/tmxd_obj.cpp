#include "core/tmxd_obj.h"

namespace mxd {

void Tmxd_obj::describe_header(Field_writer& writer) const {
  writer.integer("number", number);
  writer.integer("reserve", reserve);
  writer.integer("version", version);
}

void Tmxd_obj::append_object_text(std::string& out, int indent, int step) const {
  Dump_field_writer writer(out, indent, step);
  writer.group(dump_only(type_name()), [&] {
    describe_header(writer);
    describe(writer);
  });
}

void Tmxd_obj::write_object_xml(Xml_builder& xml, const Xml_name& name) const {
  xml.open(name);
  xml.open(Xml_name(type_name()));
  Xml_field_writer writer(xml);
  if (!exists) {
    writer.boolean("exists", false);
  } else {
    describe_header(writer);
    if (repeat) {
      writer.boolean("repeat", true);
    } else {
      describe(writer);
    }
  }
  xml.close();
  xml.close();
}

}  // namespace mxd
