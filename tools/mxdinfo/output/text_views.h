// The views of the text output, each of one document.
#pragma once

#include "mxdinfo/output/text_lines.h"

namespace mxdinfo {

enum class References { hidden, shown };

void append_tree(Text_lines& lines, const Report& report, References references);
// The legends alone, each symbol with its layers.
void append_symbols(Text_lines& lines, const Report& report);
void append_layers(Text_lines& lines, const Report& report);
void append_sources(Text_lines& lines, const Report& report);
void append_fonts(Text_lines& lines, const Report& report);
void append_coordinate_systems(Text_lines& lines, const Report& report);

}  // namespace mxdinfo
