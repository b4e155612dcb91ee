#include "support/object_builder.h"

#include <bit>

#include "document/known_class_scanner.h"
#include "support/temp_file.h"

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

Bytes& Bytes::object(const Class_id& class_id, int number, int version, const Bytes& fields) {
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
  memory.write(bytes.data().data(), 1, bytes.size());
  memory.seek(0);
}

}  // namespace

Decoder::Decoder(const Bytes& bytes)
    : stream((fill(memory_, bytes), memory_), known_class_scanner(), errors) {}

std::string dump_of(const Tmxd_obj& object) {
  std::string out = "to be cleared";
  object.dump_object_text(out, 0, 2);
  return out;
}

std::string xml_of(const Tmxd_obj& object, std::string_view name) {
  Xml_tree tree("root");
  object.write_object_xml(tree.root(), Xml_name(name));
  const Temp_file file;
  EXPECT_TRUE(xml_save_file(file.path(), tree.root()));
  const std::string text = file.text();
  const std::size_t begin = text.find("<root>\n") + 7;
  return text.substr(begin, text.rfind("\n</root>") - begin);
}

}  // namespace mxd::test
