// Writes the XML document that a save produces.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mxd {

// A tag: a fixed word, in lists followed by a 1-based number ("layer_" and 3 give layer_3). The
// word is not copied.
struct Xml_name {
  std::string_view word;
  std::int32_t number = 0;

  constexpr Xml_name(const char* text) : word(text) {}
  constexpr explicit Xml_name(std::string_view text, std::int32_t list_number = 0)
      : word(text), number(list_number) {}
};

// The entity for a character that must be escaped; empty for all others.
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
// with the document. Write errors are left in ferror(file).
class Xml_builder {
 public:
  // Writes the XML declaration and opens the root. The file must outlive the builder.
  Xml_builder(std::FILE* file, const Xml_name& root);
  Xml_builder(const Xml_builder&) = delete;
  Xml_builder& operator=(const Xml_builder&) = delete;

  // Closes all open elements and writes what is buffered. Without it the document is incomplete.
  void finish();

  // Opens an element in the innermost open one, and closes it.
  void open(const Xml_name& name);
  void close();

  // Each adds an element with a value to the innermost open one. Only strings are escaped.
  void add_string(const Xml_name& name, std::string_view text);
  void add_int(const Xml_name& name, std::int32_t value);
  void add_double(const Xml_name& name, double value);
  void add_bool(const Xml_name& name, bool value);
  // Two upper-case digits for each byte, separated by blanks.
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
