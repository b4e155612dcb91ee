#include "rendering/property_page.h"

namespace mxd {

std::span<const Guid> property_page_ids() {
  static constexpr std::array ids = {Tmxd_unique_value_property_page::clsid.guid,
                                     Tmxd_graduated_color_property_page::clsid.guid};
  return ids;
}

std::unique_ptr<Tmxd_property_page> create_property_page(const Guid& class_id) {
  if (class_id == Tmxd_unique_value_property_page::clsid.guid) {
    return std::make_unique<Tmxd_unique_value_property_page>();
  }
  if (class_id == Tmxd_graduated_color_property_page::clsid.guid) {
    return std::make_unique<Tmxd_graduated_color_property_page>();
  }
  return nullptr;
}

bool Tmxd_property_page_slot::read(Tmxd_mxd_stream& stream, std::int64_t limit) {
  page_.reset();
  const Scan_result found = stream.scan(property_page_ids(), -1, limit);
  if (!found.hit) return found.ok;
  page_ = create_property_page(found.hit->class_id);
  return page_ && stream.seek(static_cast<std::uint64_t>(found.hit->position)) &&
         read_class_id(stream, page_->class_id().guid) && page_->read_fields(stream, limit);
}

}  // namespace mxd
