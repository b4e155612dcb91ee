// Draws all features with one symbol.
#pragma once

#include "rendering/legend.h"
#include "rendering/renderer.h"

namespace mxd {

class Tmxd_simple_renderer final : public Persisted_class<Tmxd_simple_renderer, Tmxd_renderer> {
 public:
  static constexpr Class_id clsid{"F3435801-5779-11D0-98BF-00805F7CED21"};
  static constexpr std::string_view type = "mxd_simple_renderer";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Tmxd_symbol_slot symbol_slot;
  Tmxd_legend_group legend_group;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
