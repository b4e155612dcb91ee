// The XML element tree that a save builds, and the file it becomes.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory_resource>
#include <string_view>

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

struct Tmxd_xml_node;

struct Xml_node_list {
  Tmxd_xml_node* first = nullptr;
  Tmxd_xml_node* last = nullptr;
};

// One element. Elements and their values live in their tree's memory, which goes as a whole.
struct Tmxd_xml_node {
  std::pmr::memory_resource* memory;
  Xml_name name;
  std::string_view value;  // escaped
  Xml_node_list children{};
  Xml_node_list attributes{};
  Tmxd_xml_node* next = nullptr;
};

class Xml_tree {
 public:
  explicit Xml_tree(Xml_name root_name) : root_{&memory_, root_name, {}} {}
  Tmxd_xml_node& root() { return root_; }

 private:
  std::pmr::monotonic_buffer_resource memory_;
  Tmxd_xml_node root_;
};

// Each appends an element to the parent's children; only the string is escaped.
Tmxd_xml_node& xml_add_node(Tmxd_xml_node& parent, Xml_name name);
void xml_add_string(Tmxd_xml_node& parent, Xml_name name, std::string_view text);
void xml_add_int(Tmxd_xml_node& parent, Xml_name name, std::int32_t value);
void xml_add_double(Tmxd_xml_node& parent, Xml_name name, double value);
void xml_add_bool(Tmxd_xml_node& parent, Xml_name name, bool value);

void xml_add_attribute(Tmxd_xml_node& node, Xml_name name, std::string_view text);

// The whole document. Whether all of it arrived, the file tells.
void xml_write(std::FILE* file, const Tmxd_xml_node& root);

// False when the file cannot be opened; what happens to the writing after that is not reported.
bool xml_save_file(const Wide_string& path, const Tmxd_xml_node& root);

}  // namespace mxd
