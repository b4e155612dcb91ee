// A map: a data frame of the document, with its layers and the coordinate system that it is drawn
// in.
#pragma once

#include "document/layer.h"

namespace mxd {

class Tmxd_map final : public Persisted_class<Tmxd_map> {
 public:
  static constexpr Class_id clsid{"E6BDAA76-4D35-11D0-98BE-00805F7CED21"};
  static constexpr std::string_view type = "mxd_map";

  static const Object_family& family();

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string name;
  Tmxd_layers layers;
  Tmxd_coordinate_system_slot coordinate_system;

 protected:
  void describe(Field_writer& writer) const override;
};

using Tmxd_maps = Object_list<Tmxd_map>;

using Map_classes = Class_list<Tmxd_map>;

}  // namespace mxd
