// Symbols, legends and renderers as small as they can be, for the tests of what holds them.
#pragma once

#include "rendering/class_breaks_renderer.h"
#include "rendering/simple_renderer.h"
#include "rendering/unique_value_renderer.h"
#include "support/object_builder.h"

namespace mxd::test {

inline constexpr Class_id simple_line_id{"7914e5f9-c892-11d0-8bb6-080009ee4e41"};

// A simple line of that width, without a color.
inline Bytes line_symbol(int number, double width) {
  return Bytes().object(simple_line_id, number, 1, Bytes().f64(width).i32(2).trailer());
}

inline Bytes legend_class(int number, int version, const char* label, const Bytes& symbol = {}) {
  return object<Tmxd_legend_class>(number, version,
                                   Bytes().add(symbol).wide(label).counting(version < 2 ? 22 : 26));
}

inline Bytes legend_group(int number, const char* label, std::int64_t count = 0,
                          const Bytes& classes = {}) {
  return object<Tmxd_legend_group>(number, 1, Bytes().i32(-7).wide(label).i32(count).add(classes));
}

inline Bytes simple_renderer(int number, const Bytes& symbol = {}) {
  return object<Tmxd_simple_renderer>(number, 1,
                                      Bytes().add(symbol).add(legend_group(number + 1, "Wells")));
}

inline Bytes class_breaks_renderer(int number, const Bytes& ranges, std::int64_t count = 0,
                                   const Bytes& classes = {}) {
  return object<Tmxd_class_breaks_renderer>(
      number, 2,
      Bytes().wide("POP").wide("hidden").add(ranges).counting(8).add(
          legend_group(number + 1, "People", count, classes)));
}

// The second legend group of a unique value renderer; zeros mean that real documents have one
// group.
enum class Main { absent, zeros, present, reference };

// With as many names as a renderer of that count has, and the version's own fields.
inline Bytes unique_value_renderer(int names, int version, Main main, const Bytes& values,
                                   const Bytes& symbol = {}) {
  Bytes fields;
  fields.i32(names);
  if (names >= 1) fields.wide("TYPE");
  fields.counting(3);
  if (names >= 2) fields.wide("CLASS");
  if (names >= 3) fields.wide("KIND");
  fields.counting(10, 0xF6).add(symbol).i32(-2).add(legend_group(21, "other"));
  if (version >= 4) fields.u16(65535);
  if (main == Main::present) fields.add(legend_group(22, "main"));
  if (main == Main::reference) fields.reference(Tmxd_legend_group::clsid, 21);
  if (main == Main::zeros) fields.zeros(16);
  if (main >= Main::present) fields.counting(version < 4 ? 16 : 18);
  return object<Tmxd_unique_value_renderer>(20, version, fields.add(values));
}

inline Bytes unique_value(const char* text, int int1, int int2, int int3) {
  return Bytes().wide(text).i32(int1).i32(int2).i32(int3);
}

}  // namespace mxd::test
