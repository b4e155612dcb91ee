#include "core/field_writer.h"

#include "core/number_text.h"
#include "core/text_dump.h"
#include "core/tmxd_obj.h"

namespace mxd {
namespace {

Xml_name xml_name(const Key& key) {
  return Xml_name(key.xml, key.number);
}

// The dump's key of a field: its word, in lists with a number.
std::string dump_key(const Key& key) {
  return std::string(key.dump) + (key.number > 0 ? int_text(key.number) : std::string());
}

}  // namespace

void Dump_field_writer::integer(const Key& key, std::int32_t value) {
  if (!key.dump.empty()) dump_line_int(out_, indent_, dump_key(key), value);
}

void Dump_field_writer::real(const Key& key, double value) {
  if (!key.dump.empty()) dump_line_double(out_, indent_, dump_key(key), value);
}

void Dump_field_writer::boolean(const Key& key, bool value) {
  if (!key.dump.empty()) dump_line_bool(out_, indent_, dump_key(key), value);
}

void Dump_field_writer::text_line(const Key& key, std::string_view text) {
  if (!key.dump.empty()) dump_line_text(out_, indent_, dump_key(key), text);
}

void Dump_field_writer::bytes(const Key& key, const Byte_run& run) {
  text_line(key, bytes_to_hex(run, " "));
}

void Dump_field_writer::object(std::string_view, const Tmxd_obj& object, std::int32_t) {
  object.append_object_text(out_, indent_, step_);
}

void Dump_field_writer::open(const Key& key) {
  if (key.dump.empty()) return;
  dump_line_text(out_, indent_, dump_key(key), "{");
  indent_ += step_;
}

void Dump_field_writer::close(const Key& key) {
  if (key.dump.empty()) return;
  indent_ -= step_;
  out_.append(dump_indent(indent_)).append("}\n");
}

void Xml_field_writer::integer(const Key& key, std::int32_t value) {
  if (!key.xml.empty()) xml_add_int(element_, xml_name(key), value);
}

void Xml_field_writer::real(const Key& key, double value) {
  if (!key.xml.empty()) xml_add_double(element_, xml_name(key), value);
}

void Xml_field_writer::boolean(const Key& key, bool value) {
  if (!key.xml.empty()) xml_add_bool(element_, xml_name(key), value);
}

void Xml_field_writer::text_line(const Key& key, std::string_view text) {
  if (!key.xml.empty()) xml_add_string(element_, xml_name(key), text);
}

void Xml_field_writer::bytes(const Key& key, const Byte_run& run) {
  if (!key.xml.empty()) xml_add_bytes(element_, xml_name(key), run);
}

void Xml_field_writer::object(std::string_view name, const Tmxd_obj& object, std::int32_t number) {
  object.write_object_xml(element_, Xml_name(name, number));
}

void Xml_field_writer::open(const Key& key) {
  if (key.xml.empty()) return;
  element_ = xml_add_node(element_, xml_name(key));
}

void Xml_field_writer::close(const Key& key) {
  if (key.xml.empty()) return;
  element_ = xml_parent(element_);
}

}  // namespace mxd
