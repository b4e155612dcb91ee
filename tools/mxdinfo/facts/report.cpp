#include "mxdinfo/facts/report.h"

#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/losses.h"

namespace mxdinfo {

Summary summary_of(const Report& report) {
  Summary summary{.name = report.name, .failure = report.failure};
  summary.maps = report.outline.maps.size();
  for (const auto& map : report.outline.maps) {
    for (const Listed_layer& layer : listed_layers(map)) {
      ++summary.layers;
      if (layer.layer()) ++summary.decoded_layers;
    }
  }
  summary.losses = losses_of(report).size();
  return summary;
}

void Totals::add(const Summary& summary) {
  ++documents;
  if (!summary.failure.empty()) ++unreadable;
  maps += summary.maps;
  layers += summary.layers;
  matches += summary.matches;
  decoded_layers += summary.decoded_layers;
  (summary.is_unchanged ? unchanged_with_losses : losses) += summary.losses;
  if (summary.is_unchanged) ++unchanged;
}

}  // namespace mxdinfo
