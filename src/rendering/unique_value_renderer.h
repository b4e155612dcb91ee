// Draws the features of each combined value of up to three fields with a symbol of its own.
#pragma once

#include <vector>

#include "rendering/legend.h"
#include "rendering/renderer.h"

namespace mxd {

// The symbol of a value is in the legend: class int2 of group int1, both counted from 0 in stream
// order.
struct Tmxd_unique_value {
  Wide_string wstr;
  std::int32_t int1 = 0;
  std::int32_t int2 = 0;
  std::int32_t int3 = 0;
};

using Tmxd_unique_values = std::vector<Tmxd_unique_value>;

// Reads a count and that many values. The first value that cannot be read ends the list.
[[nodiscard]] bool read_unique_values(Tmxd_unique_values& values, Tmxd_mxd_stream& stream);

class Tmxd_unique_value_renderer final
    : public Persisted_class<Tmxd_unique_value_renderer, Tmxd_renderer> {
 public:
  static constexpr Class_id clsid{"C3346D29-B2BC-11D1-8817-080009EC732A"};
  static constexpr std::string_view type = "mxd_unique_value_renderer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t propname_count = 0;
  Wide_string propname1, propname2, propname3;
  Fixed_bytes<3> bytes1;
  Fixed_bytes<10> bytes2;
  // Default symbol and legend, for features that have none of the values.
  Tmxd_symbol_slot symbol_slot;
  std::int32_t int2 = 0;
  Tmxd_legend_group other_leg_grp;
  std::uint16_t ushort10 = 0;
  Tmxd_legend_group main_leg_grp;
  Fixed_bytes<18> bytes3;
  Tmxd_unique_values unique_values;

 protected:
  void describe(Field_writer& writer) const override;

 private:
  bool read_after_main_group(Tmxd_mxd_stream& stream);
};

}  // namespace mxd
