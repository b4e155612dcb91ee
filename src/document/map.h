// A map: a data frame of the document, with its layers and the coordinate system it is shown in.
#pragma once

#include "document/layer.h"

namespace mxd {

class Tmxd_map final : public Persisted_class<Tmxd_map> {
 public:
  static constexpr Class_id clsid{"E6BDAA76-4D35-11D0-98BE-00805F7CED21"};
  static constexpr std::string_view type = "mxd_map";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string name;
  Tmxd_layers layers;
  Tmxd_coordinate_system_slot coordinate_system;

 protected:
  void describe(Field_writer& writer) const override;
};

const Object_family& map_family();

using Tmxd_maps = Object_list<Tmxd_map>;

// Reads a map at every place behind the stream's position where the id of one stands.
bool read_maps(Tmxd_maps& maps, Tmxd_mxd_stream& stream);

}  // namespace mxd
