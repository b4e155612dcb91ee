// The base of every object that a document persists.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/class_list.h"
#include "core/field_writer.h"
#include "storage/guid.h"

namespace mxd {

class Tmxd_mxd_stream;

// Each class lists its fields three times: as data members, in read_fields() in stream order, and
// in describe() in output order. Everything else is derived from these.
class Tmxd_obj {
 public:
  Tmxd_obj() = default;
  Tmxd_obj(const Tmxd_obj&) = delete;
  virtual ~Tmxd_obj() = default;

  virtual const Class_id& class_id() const = 0;
  virtual std::string_view type_name() const = 0;
  virtual std::size_t object_size() const = 0;

  // Reads what follows the header. Class-id searches inside must stay below `limit`; negative means
  // no limit.
  [[nodiscard]] virtual bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) = 0;

  // Whether copy_from() would copy anything: the class supports copying, and the source's class
  // matches.
  virtual bool can_copy(const Tmxd_obj& /*source*/) const { return false; }

  // Copies the fields, never the header. Returns false if nothing was copied; some classes also
  // return false after copying.
  virtual bool copy_from(const Tmxd_obj& /*source*/) { return false; }

  // Appends the text dump: the header and the fields in braces.
  void append_object_text(std::string& out, int indent, int step) const;
  // Adds an element of this name that holds the object.
  void write_object_xml(Xml_builder& xml, const Xml_name& name) const;

  // Type names are string literals and therefore NUL-terminated.
  const char* type_str() const { return type_name().data(); }

  // 0 if the document has no object here.
  std::uint8_t exists = 1;
  // 1 if this is a back-reference: an object with this number was read before.
  std::uint8_t repeat = 0;
  std::uint16_t number = 0;
  std::uint16_t reserve = 0;
  std::uint16_t version = 0;

 protected:
  // Deliberately copies nothing: the header describes this object's own place in the stream.
  Tmxd_obj& operator=(const Tmxd_obj& /*source*/) { return *this; }

  virtual void describe(Field_writer& writer) const = 0;

 private:
  void describe_header(Field_writer& writer) const;
};

// CRTP base: implements the class's own facts from Self::clsid and Self::type.
template <class Self, class Base = Tmxd_obj>
class Persisted_class : public Base {
 public:
  const Class_id& class_id() const override { return Self::clsid; }
  std::string_view type_name() const override { return Self::type; }
  std::size_t object_size() const override { return sizeof(Self); }
};

// CRTP base for classes whose back-references are resolved by copying.
template <class Self, class Base = Tmxd_obj>
class Copyable_class : public Persisted_class<Self, Base> {
 public:
  bool can_copy(const Tmxd_obj& source) const override { return is_of<Self>(source); }
  bool copy_from(const Tmxd_obj& source) override {
    return can_copy(source) && copy_fields(static_cast<const Self&>(source));
  }

 protected:
  // Copy assignment by default.
  virtual bool copy_fields(const Self& source) {
    static_cast<Self&>(*this) = source;
    return true;
  }
};

}  // namespace mxd
