// Draws the features of each range of one numeric field with a symbol of its own.
#pragma once

#include <vector>

#include "rendering/legend.h"
#include "rendering/renderer.h"

namespace mxd {

class Tmxd_ranges {
 public:
  [[nodiscard]] bool read(Tmxd_mxd_stream& stream);
  void describe(Field_writer& writer) const;

  // The number of ranges with both bounds.
  std::int32_t size() const;
  // Return 0.0 if the index is out of range.
  double min_bnd(std::int32_t index) const { return bound(min_bounds, index); }
  double max_bnd(std::int32_t index) const { return bound(max_bounds, index); }

  std::vector<double> min_bounds;
  std::vector<double> max_bounds;

 private:
  double bound(const std::vector<double>& bounds, std::int32_t index) const;
};

class Tmxd_class_breaks_renderer final
    : public Persisted_class<Tmxd_class_breaks_renderer, Tmxd_renderer> {
 public:
  static constexpr Class_id clsid{"AE5F7EA2-8B48-11D0-8356-080009B996CC"};
  static constexpr std::string_view type = "mxd_class_breaks_renderer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string propname;
  // In neither output.
  Wide_string wstr2;
  Tmxd_ranges ranges;
  Fixed_bytes<8> bytes1;
  Tmxd_legend_group main_leg_grp;
  // Where main_leg_grp ends in the stream, or -1 if it was not read. Shown nowhere.
  std::int64_t legend_end = -1;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
