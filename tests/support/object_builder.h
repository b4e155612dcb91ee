// Persisted data written as it is meant: a test reads as the fields that it puts into the stream.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/mxd_stream.h"
#include "core/object_read.h"
#include "storage/guid.h"
#include "storage/memory_stream.h"
#include "storage/text.h"

namespace mxd::test {

class Packed;

class Bytes {
 public:
  Bytes& u8(int value) { return number(static_cast<std::uint8_t>(value)); }
  Bytes& u16(int value) { return number(static_cast<std::uint16_t>(value)); }
  Bytes& i32(std::int64_t value) { return number(static_cast<std::uint32_t>(value)); }
  Bytes& f64(double value);
  Bytes& f64s(std::initializer_list<double> values);
  // A wide string of ASCII text or UTF-16 units; its count is that of its bytes.
  Bytes& wide(std::string_view text) { return wide(from_ascii(text)); }
  Bytes& wide(const char* text) { return wide(std::string_view(text)); }
  Bytes& wide(const Wide_string& text);
  Bytes& narrow(std::string_view text);
  Bytes& raw(std::string_view bytes);
  Bytes& zeros(std::size_t count) { return raw(std::string(count, '\0')); }
  // Bytes first, first + 1, ...: a run in which a lost or shifted byte shows.
  Bytes& counting(int count, int first = 1);
  Bytes& guid(const Guid& value);
  Bytes& add(const Bytes& other);
  // Two uint32, the first of them 13 in a valid symbol.
  Bytes& trailer(int mark = 13) { return i32(mark).i32(7); }

  // A whole object: class id, number, reserve, version and its fields.
  Bytes& object(const Class_id& class_id, int number, int version, const Packed& fields);
  // An object that was written before under that number.
  Bytes& reference(const Class_id& class_id, int number);
  Bytes& null_object() { return zeros(16); }

  std::size_t size() const { return bytes_.size(); }
  const std::vector<std::uint8_t>& data() const { return bytes_; }
  Bytes prefix(std::size_t count) const;

 private:
  template <class T>
  Bytes& number(T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i) {
      bytes_.push_back(static_cast<std::uint8_t>(std::uint64_t{value} >> (8 * i)));
    }
    return *this;
  }

  std::vector<std::uint8_t> bytes_;
};

inline Bytes byte(int value) {
  return Bytes().u8(value);
}
inline Bytes word(int value) {
  return Bytes().u16(value);
}
inline Bytes run(int count, int first = 1) {
  return Bytes().counting(count, first);
}
inline Bytes trailer(int mark = 13) {
  return Bytes().trailer(mark);
}

// Fields in the order of the stream: int32, float64 and wide strings as they are, others as bytes.
// In braces they are also made in that order: {color(), line()}.
class Packed : public Bytes {
 public:
  template <class... Field>
  Packed(const Field&... fields) {
    (put(fields), ...);
  }

 private:
  void put(int value) { i32(value); }
  void put(double value) { f64(value); }
  void put(const char* text) { wide(text); }
  void put(const Bytes& bytes) { add(bytes); }
};

template <class T>
Bytes object(int number, int version, const Packed& fields) {
  return Bytes().object(T::clsid, number, version, fields);
}
template <class T>
Bytes reference(int number) {
  return Bytes().reference(T::clsid, number);
}

// Numbers objects as they are written, as a document does.
class Object_numbers {
 public:
  template <class T>
  Bytes object(int version, const Packed& fields) {
    return Bytes().object(T::clsid, next_++, version, fields);
  }

  int next_number() const { return next_; }
  int take_number() { return next_++; }

 private:
  int next_ = 1;
};

// A font without a class id.
inline Bytes font_fields(int word1, int version, int flags, int size, std::string_view name) {
  return Packed(word1, byte(version), word(204), byte(flags), word(700), size,
                byte(static_cast<int>(name.size())), Bytes().raw(name));
}

inline constexpr Class_id standard_font_id{"0be35203-8f91-11ce-9de3-00aa004bb851"};

// Records the errors of a load and counts its work.
class Recorded_errors final : public Load_observer {
 public:
  void read_failed(const Read_error& error) override { lines.push_back(error_line(error)); }
  void object_started() override { ++objects; }
  void searched(std::size_t steps) override { search_steps += steps; }

  std::vector<std::string> lines;
  std::uint64_t objects = 0;
  std::uint64_t search_steps = 0;
};

// A stream over these bytes, as a load has it, at position 0.
class Decoder {
 public:
  explicit Decoder(const Bytes& bytes);

 private:
  Tmxd_stream_m memory_;

 public:
  Recorded_errors errors;
  Load load;
  Tmxd_mxd_stream stream;
};

std::string dump_of(const Tmxd_obj& object);
// A whole XML document.
std::string xml_document(std::string_view root, const std::function<void(Xml_builder&)>& build);
// The object's element as in the file, from its "<" on.
std::string xml_of(const Tmxd_obj& object, std::string_view name = "it");

// No prefix of a valid object may be taken for one, unless only optional bytes at its end are cut.
// What was read of it must not leak or crash the outputs.
template <class T>
void expect_prefixes_fail(const Bytes& record, std::size_t optional = 0) {
  for (std::size_t length = 0; length <= record.size(); ++length) {
    SCOPED_TRACE(testing::Message() << T::type << " cut to " << length);
    Decoder decoder(record.prefix(length));
    T object;
    const bool ok = read_object(object, decoder.stream, 0, -1);
    if (length < record.size() - optional || length == record.size()) {
      EXPECT_EQ(ok, length == record.size());
    }
    EXPECT_FALSE(dump_of(object).empty());
    EXPECT_FALSE(xml_of(object).empty());
  }
}

// A slot looks for the class, and makes an object of it.
template <class T, class Slot>
void expect_found(const Bytes& record) {
  Decoder decoder(record);
  Slot slot;
  EXPECT_TRUE(slot.read(decoder.stream, 0, -1));
  EXPECT_EQ(slot.get() ? slot.get()->type_name() : "", T::type);
}

}  // namespace mxd::test
