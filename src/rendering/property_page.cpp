#include "rendering/property_page.h"

namespace mxd {

bool skip_property_page(Tmxd_mxd_stream& stream, std::int64_t limit) {
  static constexpr std::array ids = {Tmxd_unique_value_property_page::clsid.guid,
                                     Tmxd_graduated_color_property_page::clsid.guid};
  const Scan_result found = stream.scan(ids, -1, limit);
  if (!found.hit) return found.ok;
  return stream.seek(static_cast<std::uint64_t>(found.hit->position)) &&
         read_class_id(stream, found.hit->class_id);
}

}  // namespace mxd
