#include "core/xml.h"

#include <cassert>

#include "core/number_text.h"
#include "storage/text.h"

namespace mxd {
namespace {

constexpr std::size_t buffer_size = std::size_t{1} << 16;

void append_escaped(std::string& out, std::string_view text) {
  std::size_t copied = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view entity = xml_entity(text[i]);
    if (entity.empty()) continue;
    out.append(text, copied, i - copied).append(entity);
    copied = i + 1;
  }
  out.append(text, copied);
}

}  // namespace

Xml_builder::Xml_builder(std::FILE* file, const Xml_name& root) : file_(file) {
  buffer_.reserve(buffer_size);
  buffer_.append("<?xml version = \"1.0\" encoding = \"windows-1251\"?>\n");
  open(root);
}

void Xml_builder::finish() {
  while (!open_.empty()) close();
  flush();
}

void Xml_builder::open(const Xml_name& name) {
  begin_child();
  buffer_.append("\n<");
  append_name(name);
  open_.push_back({name});
}

void Xml_builder::close() {
  assert(!open_.empty());
  if (open_.back().has_children) {
    buffer_.append("\n</");
    append_name(open_.back().name);
    buffer_.append(">");
  } else {
    buffer_.append("/>");
  }
  open_.pop_back();
}

void Xml_builder::begin_child() {
  if (buffer_.size() >= buffer_size) flush();
  if (open_.empty() || open_.back().has_children) return;
  open_.back().has_children = true;
  buffer_.append(">");
}

void Xml_builder::append_name(const Xml_name& name) {
  buffer_.append(name.word);
  if (name.number > 0) append_int(buffer_, name.number);
}

// `append_value` appends the value to the buffer; it is not called if the value is empty.
template <class Append>
void Xml_builder::add_leaf(const Xml_name& name, bool empty, Append append_value) {
  begin_child();
  buffer_.append("\n<");
  append_name(name);
  if (empty) {
    buffer_.append("/>");
    return;
  }
  buffer_.append(">");
  append_value();
  buffer_.append("</");
  append_name(name);
  buffer_.append(">");
}

void Xml_builder::add_string(const Xml_name& name, std::string_view text) {
  add_leaf(name, text.empty(), [&] { append_escaped(buffer_, text); });
}

void Xml_builder::add_int(const Xml_name& name, std::int32_t value) {
  add_leaf(name, false, [&] { append_int(buffer_, value); });
}

void Xml_builder::add_double(const Xml_name& name, double value) {
  add_leaf(name, false, [&] { append_double(buffer_, value); });
}

void Xml_builder::add_bool(const Xml_name& name, bool value) {
  add_leaf(name, false, [&] { buffer_.append(value ? "true" : "false"); });
}

void Xml_builder::add_bytes(const Xml_name& name, std::span<const std::uint8_t> bytes) {
  add_leaf(name, bytes.empty(), [&] { append_hex(buffer_, bytes, " "); });
}

void Xml_builder::flush() {
  static_cast<void>(std::fwrite(buffer_.data(), 1, buffer_.size(), file_));
  buffer_.clear();
}

}  // namespace mxd
