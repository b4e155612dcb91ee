#include "mxdinfo/inventory/run_diff.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <set>
#include <unordered_map>
#include <utility>

#include "mxdinfo/cli/load.h"
#include "mxdinfo/cli/output.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/cli/progress.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/inventory/diff.h"
#include "mxdinfo/inventory/inventory_file.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

// Writes the differences of documents, one after another.
class Diff_writer {
 public:
  Diff_writer(Output& output, Format format) : output_(output), json_(format == Format::json) {
    if (json_) output_.write("[");
  }

  void add(const char* change, const std::string& document, const std::string& old_name,
           const Json& diff) {
    if (json_) {
      Json json = {{"document", document}, {"old", text_or_null(old_name)}, {"change", change}};
      json.update(diff);
      output_.write((first_ ? "\n" : ",\n") + dump_json(json, 2));
    } else {
      const std::string old_text = old_name.empty() ? "" : " from " + old_name;
      output_.write(escape_controls(fmt::format("{}: {}{}", document, change, old_text)) + "\n");
      output_.write(diff_text(diff));
    }
    first_ = false;
  }
  void end() {
    if (json_) output_.write(first_ ? "]\n" : "\n]\n");
  }

 private:
  Output& output_;
  bool json_;
  bool first_ = true;
};

// Empty if the document cannot be read, which is reported.
Json document_json(const std::string& path) {
  Report report;
  load(path, report);
  if (!report.failure.empty()) {
    print_stderr(error_message(report.name, report.failure) + "\n");
    return {};
  }
  Options options;
  options.format = Format::ndjson;
  return Json::parse(make_json_writer(options)->document(report).text);
}

class Inventory_comparison {
 public:
  Inventory_comparison(const Inventory_file& before, const Inventory_file& after,
                       Diff_writer& writer)
      : before_(before), after_(after), writer_(writer) {}

  // False if a line cannot be read.
  bool write() {
    for (const Inventory_entry& entry : before_.entries()) {
      if (!after_.find(entry.path)) removed_.emplace(entry.maps_hash, &entry);
    }
    for (const Inventory_entry& entry : after_.entries()) {
      const Inventory_entry* old = before_.find(entry.path);
      if (!(old ? compare(*old, entry, "changed") : write_new(entry))) return false;
    }
    for (const Inventory_entry& entry : before_.entries()) {
      if (after_.find(entry.path) || moved_.contains(&entry)) continue;
      if (!write_single("removed", before_, entry)) return false;
    }
    return true;
  }

 private:
  // A document with the maps of one that is gone was moved.
  bool write_new(const Inventory_entry& entry) {
    const auto [first, last] = removed_.equal_range(entry.maps_hash);
    const auto old = std::find_if(first, last, [&](const auto& candidate) {
      return !entry.maps_hash.empty() && !moved_.contains(candidate.second);
    });
    if (old == last) return write_single("added", after_, entry);
    moved_.insert(old->second);
    return compare(*old->second, entry, "moved");
  }

  bool write_single(const char* change, const Inventory_file& file, const Inventory_entry& entry) {
    const auto line = file.line(entry);
    if (!line) return false;
    const Json document = Json::parse(*line, nullptr, false);
    const bool is_new = &file == &after_;
    writer_.add(change, utf8_of_path(entry.path), "",
                is_new ? diff_of(Json(), document) : diff_of(document, Json()));
    return true;
  }

  bool compare(const Inventory_entry& old, const Inventory_entry& entry, const char* change) {
    const auto old_line = before_.line(old);
    const auto line = after_.line(entry);
    if (!old_line || !line) return false;
    const bool is_moved = old.path != entry.path;
    if (*old_line == *line) return true;
    const Json diff =
        diff_of(Json::parse(*old_line, nullptr, false), Json::parse(*line, nullptr, false));
    if (is_empty_diff(diff) && !is_moved && old.is_readable == entry.is_readable) return true;
    writer_.add(change, utf8_of_path(entry.path), is_moved ? utf8_of_path(old.path) : "", diff);
    return true;
  }

  const Inventory_file& before_;
  const Inventory_file& after_;
  Diff_writer& writer_;
  std::unordered_multimap<std::string, const Inventory_entry*> removed_;
  std::set<const Inventory_entry*> moved_;
};

bool write_documents(const Options& options, Diff_writer& writer) {
  const Json before = document_json(options.inputs[0]);
  const Json after = document_json(options.inputs[1]);
  if (before.is_null() || after.is_null()) return false;
  const Json diff = diff_of(before, after);
  if (!is_empty_diff(diff)) {
    writer.add("changed", utf8_of_path(options.inputs[1]), utf8_of_path(options.inputs[0]), diff);
  }
  return true;
}

}  // namespace

Exit_code run_diff(const Options& options) {
  const auto before = Inventory_file::open(options.inputs[0]);
  const auto after = Inventory_file::open(options.inputs[1]);
  if (!before != !after) {
    const std::string& other = options.inputs[before ? 1 : 0];
    print_stderr(error_message(utf8_of_path(other), "is not an inventory, but the other file is") +
                 "\n");
    return Exit_code::wrong_usage;
  }
  for (const std::string& input : options.inputs) {
    if (options.output.empty() || !is_same_file(options.output, input)) continue;
    print_stderr(error_message(utf8_of_path(input), "is an input, and not overwritten") + "\n");
    return Exit_code::wrong_usage;
  }
  Output output(options.output, Line_ends::kept);
  if (!output.file()) return Exit_code::some_unreadable;
  Diff_writer writer(output, options.format);
  const bool complete = before ? Inventory_comparison(*before, *after, writer).write()
                               : write_documents(options, writer);
  if (!complete) return Exit_code::some_unreadable;
  writer.end();
  return output.commit() ? Exit_code::all_read : Exit_code::some_unreadable;
}

}  // namespace mxdinfo
