// The XML tree that a save builds, and the file it becomes.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

#include "core/text_blocks.h"
#include "storage/bytes.h"
#include "storage/text.h"

namespace mxd {

// A tag: a fixed word, in lists followed by a 1-based number ("layer_" and 3 make layer_3). The
// word is a literal and not copied.
struct Xml_name {
  std::string_view word;
  std::int32_t number = 0;

  constexpr Xml_name(const char* text) : word(text) {}
  constexpr explicit Xml_name(std::string_view text, std::int32_t list_number = 0)
      : word(text), number(list_number) {}
};

// What stands for a character that markup would take for its own; empty for all others.
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

class Xml_tree;

// An element: what is added to it becomes its last child. It takes children for as long as nothing
// was added to an element around it.
struct Tmxd_xml_node {
  Xml_tree* tree;
  std::size_t level;
};

// Trees are built in the order in which they are written, so that each is kept as the text that it
// becomes, and of its elements only those that may still grow.
class Xml_tree {
 public:
  explicit Xml_tree(const Xml_name& root_name);
  Tmxd_xml_node root() { return {this, 1}; }

 private:
  friend Tmxd_xml_node xml_add_node(Tmxd_xml_node parent, const Xml_name& name);
  friend void xml_add_string(Tmxd_xml_node parent, const Xml_name& name, std::string_view text);
  friend void xml_add_int(Tmxd_xml_node parent, const Xml_name& name, std::int32_t value);
  friend void xml_add_double(Tmxd_xml_node parent, const Xml_name& name, double value);
  friend void xml_add_bool(Tmxd_xml_node parent, const Xml_name& name, bool value);
  friend void xml_add_bytes(Tmxd_xml_node parent, const Xml_name& name, const Byte_run& run);
  friend void xml_add_attribute(Tmxd_xml_node node, const Xml_name& name, std::string_view text);
  friend void xml_write(std::FILE* file, Tmxd_xml_node root);

  enum class State { bare, with_attributes, with_children };
  struct Element {
    Xml_name name;
    State state = State::bare;
  };

  // What is deeper ends here.
  void close_below(std::size_t level);
  void begin_child(std::size_t level);
  void open(std::size_t level, const Xml_name& name);
  // Put writes the value to where it is told, in no more characters than these.
  template <class Put>
  void add_leaf(Tmxd_xml_node parent, const Xml_name& name, std::size_t most, Put put);

  std::vector<Element> open_;
  Text_blocks text_;
};

inline Tmxd_xml_node xml_parent(Tmxd_xml_node node) {
  return {node.tree, node.level - 1};
}

// Each appends an element to the parent's children; only the string is escaped.
Tmxd_xml_node xml_add_node(Tmxd_xml_node parent, const Xml_name& name);
void xml_add_string(Tmxd_xml_node parent, const Xml_name& name, std::string_view text);
void xml_add_int(Tmxd_xml_node parent, const Xml_name& name, std::int32_t value);
void xml_add_double(Tmxd_xml_node parent, const Xml_name& name, double value);
void xml_add_bool(Tmxd_xml_node parent, const Xml_name& name, bool value);
// Two digits for each byte, and blanks between them.
void xml_add_bytes(Tmxd_xml_node parent, const Xml_name& name, const Byte_run& run);

// Before the element's first child.
void xml_add_attribute(Tmxd_xml_node node, const Xml_name& name, std::string_view text);

// The whole document, which ends with this. Whether all of it arrived, the file tells.
void xml_write(std::FILE* file, Tmxd_xml_node root);

// False when the file cannot be opened; what happens to the writing after that is not reported.
bool xml_save_file(const Wide_string& path, Tmxd_xml_node root);

}  // namespace mxd
