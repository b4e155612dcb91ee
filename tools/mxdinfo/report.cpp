#include "mxdinfo/report.h"

#include "mxdinfo/options.h"

namespace mxdinfo {
namespace {

class Dump_writer final : public Report_writer {
 public:
  std::string document(const Report& report) const override {
    constexpr int dump_step = 2;
    return report.content.dump(0, dump_step);
  }
};

}  // namespace

Summary summary_of(const Report& report) {
  Summary summary{report.name, report.failure, 0, 0, report.lost.size()};
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
  lost += summary.lost;
}

std::unique_ptr<Report_writer> make_dump_writer() {
  return std::make_unique<Dump_writer>();
}

std::unique_ptr<Report_writer> make_writer(const Options& options) {
  switch (options.format) {
    case Format::json:
    case Format::ndjson:
      return make_json_writer(options);
    case Format::csv:
      return make_csv_writer(options);
    case Format::html:
      return make_html_writer();
    case Format::dump:
      return make_dump_writer();
    default:
      return options.find_source.empty() ? make_text_writer(options) : make_source_finder(options);
  }
}

}  // namespace mxdinfo
