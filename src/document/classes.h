// Every class of objects that a load decodes, and the scanner for the class ids that it searches
// for.
#pragma once

#include "document/map.h"
#include "rendering/property_page.h"
#include "rendering/renderer_classes.h"
#include "storage/class_id_search.h"
#include "symbology/symbol_classes.h"

namespace mxd {

// Classes that are searched for.
using Searched_classes =
    Join<Map_classes, Layer_classes, Coordinate_system_classes, Feature_class_name_classes,
         Raster_dataset_name_classes, Renderer_classes, Symbol_classes, Color_classes,
         Property_page_classes>;

// Classes that are read only where an object of that class is expected.
using Expected_classes =
    Join<Class_list<Tmxd_workspace_name, Tmxd_feature_dataset_name, Tmxd_legend_group,
                    Tmxd_legend_class, Tmxd_line_template, Tmxd_line_decoration>,
         Line_decoration_element_classes>;

// The ids of all classes of a list, in order.
template <class List>
std::vector<Guid> class_ids_of() {
  std::vector<Guid> ids;
  for_each_class(List(),
                 [&]<class Class>(std::type_identity<Class>) { ids.push_back(Class::clsid.guid); });
  return ids;
}

// Finds the ids of Searched_classes.
const Class_id_scanner& known_class_scanner();

}  // namespace mxd
