#include "mxdinfo/output/report_writer.h"

#include "mxdinfo/cli/options.h"

namespace mxdinfo {
namespace {

class Dump_writer final : public Report_writer {
 public:
  Written_document document(const Report& report) const override {
    constexpr int dump_step = 2;
    return {report.content.dump(0, dump_step)};
  }
};

}  // namespace

std::unique_ptr<Report_writer> make_dump_writer() {
  return std::make_unique<Dump_writer>();
}

std::unique_ptr<Report_writer> make_writer(const Options& options) {
  if (options.format == Format::json || options.format == Format::ndjson) {
    return make_json_writer(options);
  }
  if (options.view == View::losses) return make_loss_writer(options);
  switch (options.format) {
    case Format::csv:
      return make_csv_writer(options);
    case Format::html:
      return make_html_writer(options);
    case Format::dump:
      return make_dump_writer();
    case Format::xml:  // written by the library
    case Format::json:
    case Format::ndjson:
    case Format::text:
      break;
  }
  return options.find_source.empty() ? make_text_writer(options) : make_source_finder(options);
}

}  // namespace mxdinfo
