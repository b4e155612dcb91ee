#include "mxdinfo/facts/report.h"

namespace mxdinfo {

Summary summary_of(const Report& report) {
  Summary summary{report.name, report.failure, 0, 0, report.errors.size()};
  for (const auto& map : report.content.maps) {
    if (!map->repeat) ++summary.maps;
    summary.layers += map->layers.size();
  }
  return summary;
}

void Totals::add(const Summary& summary) {
  ++documents;
  if (!summary.failure.empty()) ++unreadable;
  maps += summary.maps;
  layers += summary.layers;
  errors += summary.errors;
}

}  // namespace mxdinfo
