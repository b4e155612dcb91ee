#include "core/xml.h"

#include <array>
#include <memory>

#include "core/number_text.h"
#include "storage/native_output.h"

namespace mxd {
namespace {

// How much longer each byte becomes.
constexpr auto growth = [] {
  std::array<std::uint8_t, 256> result{};
  for (std::size_t i = 0; i < result.size(); ++i) {
    const std::string_view replaced = xml_entity(static_cast<char>(i));
    if (!replaced.empty()) result[i] = static_cast<std::uint8_t>(replaced.size() - 1);
  }
  return result;
}();

std::size_t escaped_size(std::string_view text) {
  std::size_t size = text.size();
  for (const char c : text) size += growth[static_cast<unsigned char>(c)];
  return size;
}

char* put_escaped(char* to, std::string_view text, std::size_t size) {
  if (size == text.size()) return Text_blocks::put(to, text);
  for (const char c : text) {
    if (growth[static_cast<unsigned char>(c)] == 0) {
      *to++ = c;
    } else {
      to = Text_blocks::put(to, xml_entity(c));
    }
  }
  return to;
}

constexpr std::size_t longest_name_number = longest_int_text;

char* put_name(char* to, const Xml_name& name) {
  to = Text_blocks::put(to, name.word);
  return name.number > 0 ? put_int(to, name.number) : to;
}

struct Close_file {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

}  // namespace

Xml_tree::Xml_tree(const Xml_name& root_name) {
  text_.append("<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n");
  open(0, root_name);
}

void Xml_tree::close_below(std::size_t level) {
  while (open_.size() > level) {
    const Element& element = open_.back();
    char* to = text_.room(element.name.word.size() + longest_name_number + 4);
    if (element.state == State::with_children) {
      to = put_name(Text_blocks::put(to, "\n</"), element.name);
      text_.keep(Text_blocks::put(to, ">"));
    } else {
      text_.keep(Text_blocks::put(to, "/>"));
    }
    open_.pop_back();
  }
}

void Xml_tree::begin_child(std::size_t level) {
  close_below(level);
  if (open_.empty() || open_.back().state == State::with_children) return;
  open_.back().state = State::with_children;
  text_.append(">");
}

void Xml_tree::open(std::size_t level, const Xml_name& name) {
  begin_child(level);
  char* to = text_.room(name.word.size() + longest_name_number + 2);
  text_.keep(put_name(Text_blocks::put(to, "\n<"), name));
  open_.push_back({name});
}

template <class Put>
void Xml_tree::add_leaf(Tmxd_xml_node parent, const Xml_name& name, std::size_t most, Put put) {
  begin_child(parent.level);
  char* to = text_.room(2 * (name.word.size() + longest_name_number) + most + 6);
  const char* tag = to = Text_blocks::put(to, "\n<");
  to = put_name(to, name);
  if (most == 0) {
    text_.keep(Text_blocks::put(to, "/>"));
    return;
  }
  const std::string_view written(tag, static_cast<std::size_t>(to - tag));
  to = put(Text_blocks::put(to, ">"));
  to = Text_blocks::put(Text_blocks::put(to, "</"), written);
  text_.keep(Text_blocks::put(to, ">"));
}

Tmxd_xml_node xml_add_node(Tmxd_xml_node parent, const Xml_name& name) {
  parent.tree->open(parent.level, name);
  return {parent.tree, parent.level + 1};
}

void xml_add_string(Tmxd_xml_node parent, const Xml_name& name, std::string_view text) {
  const std::size_t size = escaped_size(text);
  parent.tree->add_leaf(parent, name, size, [&](char* to) { return put_escaped(to, text, size); });
}

void xml_add_int(Tmxd_xml_node parent, const Xml_name& name, std::int32_t value) {
  parent.tree->add_leaf(parent, name, longest_int_text,
                        [value](char* to) { return put_int(to, value); });
}

void xml_add_double(Tmxd_xml_node parent, const Xml_name& name, double value) {
  parent.tree->add_leaf(parent, name, longest_double_text,
                        [value](char* to) { return put_double(to, value); });
}

void xml_add_bool(Tmxd_xml_node parent, const Xml_name& name, bool value) {
  const std::string_view text = value ? "true" : "false";
  parent.tree->add_leaf(parent, name, text.size(),
                        [text](char* to) { return Text_blocks::put(to, text); });
}

void xml_add_bytes(Tmxd_xml_node parent, const Xml_name& name, const Byte_run& run) {
  const std::size_t size = run.empty() ? 0 : 3 * run.size() - 1;
  parent.tree->add_leaf(parent, name, size, [&run](char* to) { return put_hex(to, run, " "); });
}

void xml_add_attribute(Tmxd_xml_node node, const Xml_name& name, std::string_view text) {
  Text_blocks& out = node.tree->text_;
  Xml_tree::Element& element = node.tree->open_.back();
  if (element.state == Xml_tree::State::bare) out.append(" ");
  element.state = Xml_tree::State::with_attributes;
  const std::size_t size = escaped_size(text);
  char* to = out.room(name.word.size() + longest_name_number + size + 4);
  to = put_escaped(Text_blocks::put(put_name(to, name), "=\""), text, size);
  out.keep(Text_blocks::put(to, "\" "));
}

void xml_write(std::FILE* file, Tmxd_xml_node root) {
  root.tree->close_below(root.level - 1);
  root.tree->text_.write(file);
}

bool xml_save_file(const Wide_string& path, Tmxd_xml_node root) {
  const std::unique_ptr<std::FILE, Close_file> file(open_text_output(path));
  if (!file) return false;
  xml_write(file.get(), root);
  return true;
}

}  // namespace mxd
