#include "document/known_class_scanner.h"

#include "document/map.h"
#include "rendering/property_page.h"
#include "symbology/color.h"
#include "symbology/symbol_lists.h"

namespace mxd {

const Class_id_scanner& known_class_scanner() {
  static const Class_id_scanner filter = [] {
    std::vector<Guid> ids;
    for (const Object_family* family :
         {&map_family(), &layer_family(), &Coordinate_system_kind::family(),
          &Feature_class_name_kind::family(), &Raster_dataset_name_kind::family(),
          &Renderer_kind::family(), &Symbol_kind::family(), &Marker_layer_kind::family(),
          &Line_layer_kind::family(), &Fill_layer_kind::family(), &Color_kind::family()}) {
      ids.insert(ids.end(), family->candidates().begin(), family->candidates().end());
    }
    ids.insert(ids.end(), property_page_ids().begin(), property_page_ids().end());
    return Class_id_scanner(std::move(ids));
  }();
  return filter;
}

}  // namespace mxd
