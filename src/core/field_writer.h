// A class describes its fields once. Dump_field_writer turns the description into the text dump,
// Xml_field_writer into XML.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/xml.h"
#include "storage/text.h"

namespace mxd {

class Tmxd_obj;

// The name of a field in each output; an empty name leaves the field out of that output. In lists
// the names end in a 1-based number.
struct Key {
  std::string_view dump;
  std::string_view xml;
  std::int32_t number = 0;

  constexpr Key(const char* in_both) : dump(in_both), xml(in_both) {}
  constexpr Key(std::string_view in_dump, std::string_view in_xml, std::int32_t list_number = 0)
      : dump(in_dump), xml(in_xml), number(list_number) {}
};

constexpr Key dump_only(std::string_view key) {
  return {key, {}};
}
constexpr Key xml_only(std::string_view key, std::int32_t list_number = 0) {
  return {{}, key, list_number};
}

class Field_writer {
 public:
  Field_writer() = default;
  Field_writer(const Field_writer&) = delete;
  Field_writer& operator=(const Field_writer&) = delete;
  virtual ~Field_writer() = default;

  virtual void integer(const Key& key, std::int32_t value) = 0;
  virtual void real(const Key& key, double value) = 0;
  virtual void boolean(const Key& key, bool value) = 0;
  // 8-bit text, not converted. Both outputs end it at its first NUL.
  void narrow_text(const Key& key, std::string_view text) { text_line(key, truncate_at_nul(text)); }
  void text(const Key& key, Wide_view text) { text_line(key, to_narrow(text)); }
  virtual void bytes(const Key& key, std::span<const std::uint8_t> run) = 0;

  // A nested object. The dump uses its type name as the key.
  virtual void object(std::string_view xml_name, const Tmxd_obj& object, std::int32_t number) = 0;
  void object(std::string_view xml_name, const Tmxd_obj& nested) { object(xml_name, nested, 0); }

  // An optional nested object. An empty slot is written as UNDEFINED in the dump and as "true" in
  // XML.
  template <class Slot>
  void slot(std::string_view xml_name, const Slot& held, std::string_view xml_name_when_empty) {
    if (held.get()) {
      object(xml_name, *held.get());
    } else {
      narrow_text(dump_only(Slot::empty_key()), "UNDEFINED");
      boolean(xml_only(xml_name_when_empty), true);
    }
  }
  template <class Slot>
  void slot(std::string_view xml_name, const Slot& held) {
    slot(xml_name, held, xml_name);
  }

  // Fields that belong together: a block in braces in the dump, an element in XML. If the key has
  // no name in one of the outputs, the fields appear there without an enclosing block or element.
  template <class Describe>
  void group(const Key& key, Describe describe) {
    open(key);
    describe();
    close(key);
  }

  // A list of objects. In XML its element contains numbered elements.
  template <class List>
  void list(std::string_view xml_name, std::string_view item_prefix, const List& objects) {
    group(xml_only(xml_name), [&] {
      std::int32_t number = 0;
      for (const auto* item : objects) object(item_prefix, *item, ++number);
    });
  }

 private:
  virtual void text_line(const Key& key, std::string_view text) = 0;
  virtual void open(const Key& key) = 0;
  virtual void close(const Key& key) = 0;
};

class Dump_field_writer final : public Field_writer {
 public:
  Dump_field_writer(std::string& out, int indent, int step)
      : out_(out), indent_(indent), step_(step) {}

  void integer(const Key& key, std::int32_t value) override;
  void real(const Key& key, double value) override;
  void boolean(const Key& key, bool value) override;
  void bytes(const Key& key, std::span<const std::uint8_t> run) override;
  void object(std::string_view xml_name, const Tmxd_obj& object, std::int32_t number) override;

 private:
  void text_line(const Key& key, std::string_view text) override;
  void open(const Key& key) override;
  void close(const Key& key) override;
  std::string& begin_line(const Key& key);

  std::string& out_;
  int indent_;
  int step_;
};

class Xml_field_writer final : public Field_writer {
 public:
  explicit Xml_field_writer(Xml_builder& xml) : xml_(xml) {}

  void integer(const Key& key, std::int32_t value) override;
  void real(const Key& key, double value) override;
  void boolean(const Key& key, bool value) override;
  void bytes(const Key& key, std::span<const std::uint8_t> run) override;
  void object(std::string_view xml_name, const Tmxd_obj& object, std::int32_t number) override;

 private:
  void text_line(const Key& key, std::string_view text) override;
  void open(const Key& key) override;
  void close(const Key& key) override;

  Xml_builder& xml_;
};

}  // namespace mxd
