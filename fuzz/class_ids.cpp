#include "class_ids.h"

#include "document/known_class_scanner.h"
#include "document/names.h"
#include "rendering/legend.h"
#include "symbology/line_decoration.h"
#include "symbology/line_template.h"

namespace mxd::fuzz {

const std::vector<Guid>& all_class_ids() {
  static const std::vector<Guid> ids = [] {
    const auto known = known_class_scanner().table().class_ids();
    std::vector<Guid> all(known.begin(), known.end());
    for (const Class_id& id :
         {Tmxd_workspace_name::clsid, Tmxd_feature_dataset_name::clsid, Tmxd_legend_group::clsid,
          Tmxd_legend_class::clsid, Tmxd_line_template::clsid, Tmxd_line_decoration::clsid,
          Tmxd_simple_line_decoration_element::clsid,
          Class_id("0be35203-8f91-11ce-9de3-00aa004bb851")}) {
      all.push_back(id.guid);
    }
    return all;
  }();
  return ids;
}

}  // namespace mxd::fuzz
