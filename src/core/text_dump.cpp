#include "core/text_dump.h"

#include "core/number_text.h"

namespace mxd {

std::string dump_indent(int n) {
  std::string blanks;
  blanks.resize(static_cast<std::size_t>(n), ' ');
  return blanks;
}

void dump_line_text(std::string& out, int indent, std::string_view key, std::string_view text) {
  out.append(static_cast<std::size_t>(indent), ' ');
  out.append(key).append(" = ").append(text).append("\n");
}

void dump_line_int(std::string& out, int indent, std::string_view key, std::int32_t value) {
  dump_line_text(out, indent, key, int_text(value));
}

void dump_line_double(std::string& out, int indent, std::string_view key, double value) {
  dump_line_text(out, indent, key, double_text(value));
}

void dump_line_bool(std::string& out, int indent, std::string_view key, bool value) {
  dump_line_text(out, indent, key, value ? "true" : "false");
}

}  // namespace mxd
