#include "mxdinfo/output/json_list_stream.h"

namespace mxdinfo {
namespace {

constexpr std::size_t indent_width = 2;

std::string indented(std::string_view text, std::size_t indent) {
  std::string out;
  for (const char c : text) {
    out += c;
    if (c == '\n') out.append(indent, ' ');
  }
  return out;
}

}  // namespace

std::string Json_list_stream::line_start(std::size_t indent) const {
  std::string start;
  if (pretty_) start.append(1, '\n').append(indent, ' ');
  return start;
}

std::string Json_list_stream::element_text(const Json& value) const {
  const std::string text = dump_json(value, pretty_ ? static_cast<int>(indent_width) : -1);
  if (lists_.empty()) return text;
  const Open_list& list = lists_.back();
  std::string out(list.has_elements ? "," : "");
  out.append(line_start(list.element_indent));
  return out.append(pretty_ ? indented(text, list.element_indent) : text);
}

std::string Json_list_stream::list_end() const {
  const Open_list& list = lists_.back();
  return list.has_elements ? line_start(list.element_indent - indent_width) : std::string();
}

bool Json_list_stream::open(const Json& value) {
  const std::string text = element_text(value);
  const std::size_t list = text.rfind("[]") + 1;
  if (!out_.append(std::string_view(text).substr(0, list))) return false;
  if (!lists_.empty()) lists_.back().has_elements = true;
  std::size_t indent = 0;
  if (pretty_) {
    const std::size_t line = text.rfind('\n', list) + 1;
    indent = text.find_first_not_of(' ', line) - line + indent_width;
  }
  lists_.push_back({text.substr(list), indent, false});
  return true;
}

bool Json_list_stream::add(const Json& value) {
  if (!out_.append(element_text(value))) return false;
  lists_.back().has_elements = true;
  return true;
}

void Json_list_stream::add_end(const Json& value) {
  out_.append_end(element_text(value));
  lists_.back().has_elements = true;
}

void Json_list_stream::next_list(std::string_view key) {
  Open_list& list = lists_.back();
  std::string text = list_end();
  text.append("],").append(line_start(list.element_indent - indent_width)).append("\"");
  out_.append_end(text.append(key).append(pretty_ ? "\": [" : "\":["));
  list.has_elements = false;
}

void Json_list_stream::close() {
  out_.append_end(list_end() + lists_.back().tail);
  lists_.pop_back();
}

}  // namespace mxdinfo
