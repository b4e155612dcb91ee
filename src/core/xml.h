// Writes XML, element by element.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mxd {

// An element name: a word, followed in lists by a 1-based number ("layer_" and 3 give layer_3). The
// number 0 adds nothing. The word must outlive the name.
struct Xml_name {
  std::string_view word;
  std::int32_t number = 0;

  constexpr Xml_name(const char* text) : word(text) {}
  constexpr explicit Xml_name(std::string_view text, std::int32_t list_number = 0)
      : word(text), number(list_number) {}
};

// The entity that replaces the character; empty if it needs no escaping. Control characters are
// left alone, although XML forbids most of them.
constexpr std::string_view xml_entity(char c) {
  switch (c) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '&':
      return "&amp;";
    case '\'':
      return "&apos;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

// Elements are added in document order and written through a small buffer, so memory does not grow
// with the document. Write errors are not reported; ferror(file) shows them after finish().
class Xml_builder {
 public:
  // Writes the XML declaration and opens the root. The file must outlive the builder.
  Xml_builder(std::FILE* file, const Xml_name& root);
  Xml_builder(const Xml_builder&) = delete;
  Xml_builder& operator=(const Xml_builder&) = delete;

  // Closes all open elements and writes what is buffered. Must be called last; the destructor does
  // neither.
  void finish();

  // Opens a child of the innermost open element.
  void open(const Xml_name& name);
  // Closes the innermost open element, which must exist.
  void close();

  // Each adds a child with this value to the innermost open element. Strings must already be in the
  // declared encoding; they are escaped. Empty values give an empty element.
  void add_string(const Xml_name& name, std::string_view text);
  void add_int(const Xml_name& name, std::int32_t value);
  void add_double(const Xml_name& name, double value);
  void add_bool(const Xml_name& name, bool value);
  // Two upper-case digits for each byte, separated by spaces.
  void add_bytes(const Xml_name& name, std::span<const std::uint8_t> bytes);

 private:
  struct Element {
    Xml_name name;
    bool has_children = false;
  };

  void begin_child();
  void append_name(const Xml_name& name);
  template <class Append>
  void add_leaf(const Xml_name& name, bool empty, Append append_value);
  void flush();

  std::FILE* file_;
  std::string buffer_;
  std::vector<Element> open_;
};

}  // namespace mxd
