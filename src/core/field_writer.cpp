#include "core/field_writer.h"

#include "core/number_text.h"
#include "core/tmxd_obj.h"

namespace mxd {
namespace {

Xml_name xml_name(const Key& key) {
  return Xml_name(key.xml, key.number);
}

}  // namespace

// Appends the indent, the key and " = ".
std::string& Dump_field_writer::begin_line(const Key& key) {
  out_.append(static_cast<std::size_t>(indent_), ' ').append(key.dump);
  if (key.number > 0) append_int(out_, key.number);
  return out_.append(" = ");
}

void Dump_field_writer::integer(const Key& key, std::int32_t value) {
  if (key.dump.empty()) return;
  append_int(begin_line(key), value);
  out_.push_back('\n');
}

void Dump_field_writer::real(const Key& key, double value) {
  if (key.dump.empty()) return;
  append_double(begin_line(key), value);
  out_.push_back('\n');
}

void Dump_field_writer::boolean(const Key& key, bool value) {
  text_line(key, value ? "true" : "false");
}

void Dump_field_writer::text_line(const Key& key, std::string_view text) {
  if (!key.dump.empty()) begin_line(key).append(text).push_back('\n');
}

void Dump_field_writer::bytes(const Key& key, std::span<const std::uint8_t> run) {
  if (key.dump.empty()) return;
  append_hex(begin_line(key), run, " ");
  out_.push_back('\n');
}

void Dump_field_writer::object(std::string_view, const Tmxd_obj& object, std::int32_t) {
  object.append_object_text(out_, indent_, step_);
}

void Dump_field_writer::open(const Key& key) {
  if (key.dump.empty()) return;
  text_line(key, "{");
  indent_ += step_;
}

void Dump_field_writer::close(const Key& key) {
  if (key.dump.empty()) return;
  indent_ -= step_;
  out_.append(static_cast<std::size_t>(indent_), ' ').append("}\n");
}

void Xml_field_writer::integer(const Key& key, std::int32_t value) {
  if (!key.xml.empty()) xml_.add_int(xml_name(key), value);
}

void Xml_field_writer::real(const Key& key, double value) {
  if (!key.xml.empty()) xml_.add_double(xml_name(key), value);
}

void Xml_field_writer::boolean(const Key& key, bool value) {
  if (!key.xml.empty()) xml_.add_bool(xml_name(key), value);
}

void Xml_field_writer::text_line(const Key& key, std::string_view text) {
  if (!key.xml.empty()) xml_.add_string(xml_name(key), text);
}

void Xml_field_writer::bytes(const Key& key, std::span<const std::uint8_t> run) {
  if (!key.xml.empty()) xml_.add_bytes(xml_name(key), run);
}

void Xml_field_writer::object(std::string_view name, const Tmxd_obj& object, std::int32_t number) {
  object.write_object_xml(xml_, Xml_name(name, number));
}

void Xml_field_writer::open(const Key& key) {
  if (!key.xml.empty()) xml_.open(xml_name(key));
}

void Xml_field_writer::close(const Key& key) {
  if (!key.xml.empty()) xml_.close();
}

}  // namespace mxd
