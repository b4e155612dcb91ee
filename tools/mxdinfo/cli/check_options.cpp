#include "mxdinfo/cli/check_options.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace mxdinfo {
namespace {

bool is_any_of(Format format, std::initializer_list<Format> formats) {
  return std::find(formats.begin(), formats.end(), format) != formats.end();
}

bool is_list_format(Format format) {
  return is_any_of(format, {Format::text, Format::csv, Format::json, Format::ndjson});
}

bool is_view_of_text(View view) {
  return view != View::tree && view != View::losses && view != View::broken;
}

// A condition that must not hold, and the message about it.
struct Rule {
  bool is_broken;
  const char* message;
};

std::string first_broken(std::initializer_list<Rule> rules) {
  for (const Rule& rule : rules) {
    if (rule.is_broken) return rule.message;
  }
  return {};
}

std::string input_error(const Options& options) {
  const auto uses_of_input =
      std::count(options.inputs.begin(), options.inputs.end(), "-") + (options.files_from == "-");
  const bool is_list = !options.files_from.empty();
  const bool two_files = options.inputs.size() == 2 && !is_list;
  const bool one_document = is_any_of(options.format, {Format::xml, Format::dump});
  return first_broken({
      {uses_of_input > 1, "-: standard input can be read only once"},
      {options.diff && !two_files, "--diff: takes two files: the old one and the new one"},
      {one_document && options.output.empty() && (options.inputs.size() != 1 || is_list),
       "--format: xml and dump of several documents need -o FOLDER"},
  });
}

std::string view_error(const Options& options) {
  const Format format = options.format;
  const bool plain = options.view == View::tree && options.find_source.empty();
  const bool total_format = is_any_of(format, {Format::text, Format::csv, Format::json});
  const bool total_view =
      options.view != View::tree && options.view != View::layers && options.view != View::broken;
  const bool is_list = is_list_format(format);
  return first_broken({
      {options.update && format != Format::ndjson, "--update: writes ndjson"},
      {options.update && !plain, "--update: does not go with views and searches"},
      {options.totals && !total_view,
       "--totals: needs --sources, --crs, --symbols, --fonts or --losses"},
      {options.totals && !total_format, "--totals: goes with text, csv and json"},
      {options.view == View::losses && !is_list, "--losses: goes with text, csv, json and ndjson"},
      {options.view == View::broken && !is_list, "--broken: goes with text, csv, json and ndjson"},
      {!options.find_source.empty() && !is_list,
       "--find-source: goes with text, csv, json and ndjson"},
      {!options.totals && is_view_of_text(options.view) && format != Format::text,
       "--format: this view is of the text; with --totals it goes with csv and json"},
      {options.deep && options.find_source.empty(), "--deep: needs --find-source"},
      {options.diff && (!plain || !is_any_of(format, {Format::text, Format::json})),
       "--diff: goes with text and json, without views and searches"},
  });
}

std::string source_error(const Options& options) {
  const bool shown = is_list_format(options.format) || options.format == Format::html;
  return first_broken({
      {!options.mappings.empty() && !options.check_sources,
       "--map: needs --check-sources or --broken"},
      {options.check_sources && !shown,
       "--check-sources: goes with text, csv, json, ndjson and html"},
  });
}

}  // namespace

std::string usage_error(const Options& options) {
  for (const auto& error : {input_error, view_error, source_error}) {
    std::string message = error(options);
    if (!message.empty()) return message;
  }
  return {};
}

}  // namespace mxdinfo
