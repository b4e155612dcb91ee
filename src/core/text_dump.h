// The lines of the text dump: indent, key, " = ", value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mxd {

std::string dump_indent(int n);

// Each appends one line.
void dump_line_int(std::string& out, int indent, std::string_view key, std::int32_t value);
void dump_line_double(std::string& out, int indent, std::string_view key, double value);
void dump_line_bool(std::string& out, int indent, std::string_view key, bool value);
void dump_line_text(std::string& out, int indent, std::string_view key, std::string_view text);

}  // namespace mxd
