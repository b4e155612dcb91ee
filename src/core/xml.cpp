#include "core/xml.h"

#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "core/number_text.h"
#include "storage/native_output.h"

namespace mxd {
namespace {

std::string_view entity(char c) {
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

std::string_view kept(std::pmr::memory_resource& memory, std::string_view text) {
  if (text.empty()) return {};
  char* copy = static_cast<char*>(memory.allocate(text.size(), 1));
  std::memcpy(copy, text.data(), text.size());
  return {copy, text.size()};
}

std::string_view xml_escape(std::pmr::memory_resource& memory, std::string_view text) {
  constexpr const char* special = "<>&'\"";
  std::size_t end = text.find_first_of(special);
  if (end == std::string_view::npos) return kept(memory, text);
  std::string result;
  while (end != std::string_view::npos) {
    result.append(text.substr(0, end)).append(entity(text[end]));
    text.remove_prefix(end + 1);
    end = text.find_first_of(special);
  }
  return kept(memory, result.append(text));
}

Tmxd_xml_node& append(std::pmr::memory_resource& memory, Xml_node_list& list, Xml_name name,
                      std::string_view kept_value) {
  void* place = memory.allocate(sizeof(Tmxd_xml_node), alignof(Tmxd_xml_node));
  auto* node = new (place) Tmxd_xml_node{&memory, name, kept_value};
  (list.last ? list.last->next : list.first) = node;
  list.last = node;
  return *node;
}

void add_plain(Tmxd_xml_node& parent, Xml_name name, std::string_view text) {
  append(*parent.memory, parent.children, name, kept(*parent.memory, text));
}

// Collects the text and hands it to the file in large pieces.
class Xml_file_writer {
 public:
  explicit Xml_file_writer(std::FILE* file) : file_(file) {}

  void write(std::string_view text) {
    buffer_.append(text);
    if (buffer_.size() >= piece_size) flush();
  }

  void flush() {
    // A full disk is not reported.
    static_cast<void>(std::fwrite(buffer_.data(), 1, buffer_.size(), file_));
    buffer_.clear();
  }

  void xml_write_element(const Tmxd_xml_node& node) {
    write("\n<");
    write_name(node.name);
    if (node.attributes.first) write_attributes(node);
    if (!node.children.first && node.value.empty()) {
      write("/>");
      return;
    }
    write(">");
    write(node.value);
    for (const auto* child = node.children.first; child; child = child->next)
      xml_write_element(*child);
    write(node.children.first ? "\n</" : "</");
    write_name(node.name);
    write(">");
  }

 private:
  static constexpr std::size_t piece_size = std::size_t{1} << 16;

  void write_name(Xml_name name) {
    write(name.word);
    if (name.number > 0) write(int_text(name.number));
  }

  void write_attributes(const Tmxd_xml_node& node) {
    write(" ");
    for (const auto* item = node.attributes.first; item; item = item->next) {
      write_name(item->name);
      write("=\"");
      write(item->value);
      write("\" ");
    }
  }

  std::FILE* file_;
  std::string buffer_;
};

struct Close_file {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

}  // namespace

Tmxd_xml_node& xml_add_node(Tmxd_xml_node& parent, Xml_name name) {
  return append(*parent.memory, parent.children, name, {});
}

void xml_add_string(Tmxd_xml_node& parent, Xml_name name, std::string_view text) {
  append(*parent.memory, parent.children, name, xml_escape(*parent.memory, text));
}

void xml_add_int(Tmxd_xml_node& parent, Xml_name name, std::int32_t value) {
  add_plain(parent, name, int_text(value));
}

void xml_add_double(Tmxd_xml_node& parent, Xml_name name, double value) {
  add_plain(parent, name, double_text(value));
}

void xml_add_bool(Tmxd_xml_node& parent, Xml_name name, bool value) {
  append(*parent.memory, parent.children, name, value ? "true" : "false");
}

void xml_add_attribute(Tmxd_xml_node& node, Xml_name name, std::string_view text) {
  append(*node.memory, node.attributes, name, xml_escape(*node.memory, text));
}

void xml_write(std::FILE* file, const Tmxd_xml_node& root) {
  Xml_file_writer writer(file);
  writer.write("<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n");
  writer.xml_write_element(root);
  writer.flush();
}

bool xml_save_file(const Wide_string& path, const Tmxd_xml_node& root) {
  const std::unique_ptr<std::FILE, Close_file> file(open_text_output(path));
  if (!file) return false;
  xml_write(file.get(), root);
  return true;
}

}  // namespace mxd
