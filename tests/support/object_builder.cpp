#include "support/object_builder.h"

#include <bit>
#include <cstdio>

#include "document/classes.h"

namespace mxd::test {

Bytes& Bytes::f64(double value) {
  return number(std::bit_cast<std::uint64_t>(value));
}

Bytes& Bytes::f64s(std::initializer_list<double> values) {
  for (const double value : values) f64(value);
  return *this;
}

Bytes& Bytes::wide(const Wide_string& text) {
  i32(static_cast<std::int64_t>(2 * text.size()));
  for (const Wide_char unit : text) u16(static_cast<std::uint16_t>(unit));
  return *this;
}

Bytes& Bytes::narrow(std::string_view text) {
  return i32(static_cast<std::int64_t>(text.size())).raw(text);
}

Bytes& Bytes::raw(std::string_view bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  return *this;
}

Bytes& Bytes::counting(int count, int first) {
  for (int i = 0; i < count; ++i) u8(first + i);
  return *this;
}

Bytes& Bytes::guid(const Guid& value) {
  const Guid stored = swap_guid_byte_order(value);
  bytes_.insert(bytes_.end(), stored.bytes.begin(), stored.bytes.end());
  return *this;
}

Bytes& Bytes::add(const Bytes& other) {
  bytes_.insert(bytes_.end(), other.bytes_.begin(), other.bytes_.end());
  return *this;
}

Bytes& Bytes::object(const Class_id& class_id, int number, int version, const Packed& fields) {
  return reference(class_id, number).u16(version).add(fields);
}

Bytes& Bytes::reference(const Class_id& class_id, int number) {
  constexpr int reserve = 3;
  return guid(class_id.guid).u16(number).u16(reserve);
}

Bytes Bytes::prefix(std::size_t count) const {
  Bytes result;
  result.bytes_.assign(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(count));
  return result;
}

namespace {

void fill(Tmxd_stream_m& memory, const Bytes& bytes) {
  EXPECT_TRUE(bytes.size() == 0 || memory.write(bytes.data().data(), 1, bytes.size()));
  EXPECT_TRUE(memory.seek(0));
}

}  // namespace

Decoder::Decoder(const Bytes& bytes)
    : load(errors, bytes.size()),
      stream((fill(memory_, bytes), memory_), known_class_scanner(), load) {}

std::string dump_of(const Tmxd_obj& object) {
  std::string out;
  object.append_object_text(out, 0, 2);
  return out;
}

std::string xml_document(std::string_view root, const std::function<void(Xml_builder&)>& build) {
  static std::FILE* file = std::tmpfile();
  std::rewind(file);
  Xml_builder xml(file, Xml_name(root));
  build(xml);
  xml.finish();
  std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
  std::rewind(file);
  EXPECT_EQ(std::fread(text.data(), 1, text.size(), file), text.size());
  return text;
}

std::string xml_of(const Tmxd_obj& object, std::string_view name) {
  const std::string text =
      xml_document("root", [&](Xml_builder& xml) { object.write_object_xml(xml, Xml_name(name)); });
  const std::size_t begin = text.find("<root>\n") + 7;
  return text.substr(begin, text.rfind("\n</root>") - begin);
}

}  // namespace mxd::test
