// The base of every object that a document persists.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/field_writer.h"
#include "storage/guid.h"

namespace mxd {

class Tmxd_mxd_stream;

// A class states its fields three times: as members, in read_fields in the order of the stream, and
// in describe in the order of the outputs. Everything else follows from these.
class Tmxd_obj {
 public:
  Tmxd_obj() = default;
  Tmxd_obj(const Tmxd_obj&) = delete;
  virtual ~Tmxd_obj() = default;

  virtual const Class_id& class_id() const = 0;
  virtual std::string_view type_name() const = 0;
  virtual std::size_t object_size() const = 0;

  // What follows the header. Searches made inside stay before the limit; negative is none.
  virtual bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) = 0;

  // Whether copy_from takes over anything: not from another class, and never in a class whose
  // repetitions stay empty.
  virtual bool can_copy(const Tmxd_obj& /*source*/) const { return false; }

  // Takes over the fields of an object of the same class, never the header. False where there was
  // nothing to take over; some classes call a copy that was made false, too.
  virtual bool copy_from(const Tmxd_obj& /*source*/) { return false; }

  void dump_fields(std::string& out, int indent, int step) const;
  void write_fields_xml(Tmxd_xml_node element) const;

  void dump_object_text(std::string& out, int indent, int step) const;
  void append_object_text(std::string& out, int indent, int step) const;
  void write_object_xml(Tmxd_xml_node parent, Xml_name name) const;

  // Type names are literals, and so closed by NUL.
  const char* type_str() const { return type_name().data(); }

  std::uint8_t exists = 1;
  std::uint8_t repeat = 0;
  std::uint16_t number = 0;
  std::uint16_t reserve = 0;
  std::uint16_t version = 0;

 protected:
  // The header says where an object stands in the stream, so it never travels with the fields.
  Tmxd_obj& operator=(const Tmxd_obj& /*source*/) { return *this; }

  virtual void describe(Field_writer& writer) const = 0;
};

// What a concrete class answers about itself, from its `clsid` and `type`.
template <class Self, class Base = Tmxd_obj>
class Persisted_class : public Base {
 public:
  const Class_id& class_id() const override { return Self::clsid; }
  std::string_view type_name() const override { return Self::type; }
  std::size_t object_size() const override { return sizeof(Self); }
};

// A class whose back-references are copies. Source is the class whose objects it copies, where that
// is not only its own.
template <class Self, class Base = Tmxd_obj, class Source = Self>
class Copyable_class : public Persisted_class<Self, Base> {
 public:
  bool can_copy(const Tmxd_obj& source) const override {
    return dynamic_cast<const Source*>(&source) != nullptr;
  }
  bool copy_from(const Tmxd_obj& source) override {
    const auto* same = dynamic_cast<const Source*>(&source);
    return same && copy_fields(*same);
  }

 protected:
  // An assignment, where the class does not say otherwise.
  virtual bool copy_fields(const Source& source) {
    static_cast<Source&>(static_cast<Self&>(*this)) = source;
    return true;
  }
};

}  // namespace mxd
