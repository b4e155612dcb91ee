#include "mxdinfo/output/report_writer.h"

#include "mxdinfo/cli/options.h"

namespace mxdinfo {
std::unique_ptr<Report_writer> make_writer(const Options& options) {
  if (options.totals) return make_totals_writer(options);
  if (options.format == Format::json || options.format == Format::ndjson) {
    return make_json_writer(options);
  }
  if (options.view == View::losses) return make_loss_writer(options);
  switch (options.format) {
    case Format::csv:
      return make_csv_writer(options);
    case Format::html:
      return make_html_writer(options);
    case Format::dump:  // written by the library
    case Format::xml:
    case Format::json:
    case Format::ndjson:
    case Format::text:
      break;
  }
  const bool search = options.view == View::broken || !options.find_source.empty();
  return search ? make_layer_finder(options) : make_text_writer(options);
}

}  // namespace mxdinfo
