#include "mxdinfo/cli/run.h"

#include <fmt/format.h>

#include <cstdlib>
#include <exception>
#include <new>
#include <optional>
#include <set>

#include "mxdinfo/cli/batch.h"
#include "mxdinfo/cli/inputs.h"
#include "mxdinfo/cli/load.h"
#include "mxdinfo/cli/options.h"
#include "mxdinfo/cli/output.h"
#include "mxdinfo/cli/output_names.h"
#include "mxdinfo/cli/pages.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/cli/progress.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/facts/plural.h"
#include "mxdinfo/inventory/kept_lines.h"
#include "mxdinfo/inventory/run_diff.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/report_writer.h"
#include "mxdinfo/sources/check_sources.h"

namespace mxdinfo {
namespace {

std::string loss_messages(const Report& report) {
  constexpr std::size_t max_size = std::size_t{1} << 20;
  Bounded_text messages(max_size);
  for (const Loss& loss : losses_of(report)) {
    if (!messages.append("mxdinfo: " + escape_controls(line_of(report, loss)) + "\n")) break;
  }
  if (messages.is_full()) messages.append_end(error_message(report.name, "and more") + "\n");
  return messages.take();
}

// One run over all inputs.
class Run {
 public:
  // Without kept lines, which may be null, every input is read.
  Run(const Options& options, const Inputs& inputs, Kept_lines* kept, bool to_terminal)
      : options_(options),
        inputs_(inputs),
        kept_(kept),
        places_(options.mappings),
        progress_(inputs.paths.size(), !options.quiet && inputs.paths.size() > 1 &&
                                           is_terminal(stderr) && !to_terminal) {
    if (kept) totals_.gone = kept->gone();
  }

  // XML and dump are written by the library itself, one document per file.
  Exit_code save_document() {
    const bool saved = save(inputs_.paths.front(), options_.output);
    return saved ? exit_code() : Exit_code::some_unreadable;
  }

  Exit_code save_each() {
    const char* ending = options_.format == Format::xml ? ".xml" : ".txt";
    const auto names = output_names(inputs_.paths, options_.output, ending);
    const std::set<std::string> inputs = absolute_inputs();
    bool complete = true;
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (inputs.contains(absolute_path(names[i]))) {
        progress_.print_line(error_message(names[i], "is an input, and not overwritten"));
        complete = false;
      } else {
        complete &= make_folders_for(names[i]) && save(inputs_.paths[i], names[i]);
      }
    }
    if (!options_.quiet) progress_.end(totals_);
    return complete ? exit_code() : Exit_code::some_unreadable;
  }

  Exit_code write_all() {
    if (!write(options_, 0, inputs_.paths.size())) return Exit_code::some_unreadable;
    report_end();
    if (!options_.quiet && !options_.find_source.empty()) report_search();
    const bool slow = options_.format == Format::html && inputs_.paths.size() > max_page_documents;
    if (slow && !options_.quiet) {
      progress_.print_line("mxdinfo: large pages open slowly; -o FOLDER makes one for each folder");
    }
    return exit_code();
  }

  // Into the output, which is a folder: the pages and their index.
  Exit_code write_pages(const std::vector<Page>& pages) {
    std::vector<Page_entry> entries;
    for (const Page& page : pages) {
      Options options = options_;
      options.output = join_path(options_.output, page.file);
      options.page_title = page.title;
      options.single = false;
      const auto totals = write(options, page.first, page.count);
      if (!totals) return Exit_code::some_unreadable;
      entries.push_back({page.title, page.file, *totals});
    }
    Output index(join_path(options_.output, "index.html"), Line_ends::kept);
    if (!index.file()) return Exit_code::some_unreadable;
    index.write(page_index(entries));
    if (!index.commit()) return Exit_code::some_unreadable;
    report_end();
    return exit_code();
  }

 private:
  // Some of the inputs. Returns their totals, or nothing if the output cannot be written.
  std::optional<Totals> write(const Options& options, std::size_t first, std::size_t count) {
    Output output(options.output, Line_ends::kept);
    if (!output.file()) return std::nullopt;
    const auto writer = make_writer(options);
    output.write(writer->begin());
    Totals totals;
    std::vector<Summary> summaries;
    run_batch(
        count, options.jobs, [&](std::size_t index) { return rendered(first, index, *writer); },
        [&](Rendered_document&& result) {
          const bool written = output.write(result.text);
          record(result);
          totals.add(result.summary);
          if (options.format == Format::html) summaries.push_back(std::move(result.summary));
          return written;
        });
    output.write(writer->end(summaries));
    // Windows replaces no file that is open.
    if (kept_) kept_->close_inventory();
    if (!output.commit()) return std::nullopt;
    return totals;
  }

  void report_end() {
    const bool batch = !inputs_.single || inputs_.paths.size() > 1;
    if (!options_.quiet && (batch || options_.verbose)) progress_.end(totals_);
  }

  std::set<std::string> absolute_inputs() const {
    std::set<std::string> paths;
    for (const std::string& path : inputs_.paths) paths.insert(absolute_path(path));
    return paths;
  }

  // False if the document cannot be read or the file not be written.
  bool save(const std::string& input, const std::string& file) {
    Report report;
    load(input, report);
    record({summary_of(report), {}, loss_messages(report)});
    if (!report.failure.empty()) return false;
    Output output(file, Line_ends::system);
    if (!output.file()) return false;
    constexpr int dump_step = 2;
    if (options_.format == Format::xml) {
      report.content.write_xml(output.file());
    } else {
      output.write(report.content.dump(0, dump_step));
    }
    return output.commit();
  }

  // A search without a match says where it could not look.
  void report_search() {
    if (totals_.matches != 0) return;
    std::string line = "mxdinfo: no data source contains \"" +
                       escape_controls(utf8_of_path(options_.find_source)) + "\"";
    std::string unsearched;
    if (totals_.unreadable != 0) {
      unsearched = plural(totals_.unreadable, "document that cannot be read",
                          "documents that cannot be read");
    }
    const std::size_t undecoded = totals_.layers - totals_.decoded_layers;
    if (undecoded != 0 && !options_.deep) {
      unsearched += (unsearched.empty() ? "" : ", ") +
                    plural(undecoded, "layer that is not decoded", "layers that are not decoded") +
                    " (--deep searches them)";
    }
    if (!unsearched.empty()) line += "; not searched: " + unsearched;
    progress_.print_line(line);
  }

  // Runs on the threads of a batch.
  Rendered_document rendered(std::size_t first, std::size_t index,
                             const Report_writer& writer) const noexcept {
    Report report;
    report.index = index;
    try {
      if (kept_) {
        const Source_places* places = options_.check_sources ? &places_ : nullptr;
        auto line = kept_->line_of(inputs_.paths[first + index], places);
        if (line) return std::move(*line);
      }
      load(inputs_.paths[first + index], report);
      if (options_.check_sources) report.source_states = mxdinfo::check_sources(report, places_);
      Written_document written = writer.document(report);
      Rendered_document result{summary_of(report), std::move(written.text), loss_messages(report)};
      result.summary.matches = written.matches;
      if (!written.is_complete) {
        ++result.summary.losses;
        result.messages += error_message(report.name, "the output is too long and was cut") + "\n";
      }
      return result;
    } catch (const std::bad_alloc&) {
      return failed(report, writer, "too large for the memory");
    } catch (const std::exception&) {
      return failed(report, writer, "cannot be processed");
    }
  }

  static Rendered_document failed(Report& report, const Report_writer& writer,
                                  std::string_view failure) noexcept {
    Rendered_document result;
    result.summary.name = std::move(report.name);
    result.summary.failure = failure;
    try {
      Report empty;
      empty.index = report.index;
      empty.name = result.summary.name;
      empty.failure = failure;
      result.text = writer.document(empty).text;
    } catch (const std::exception&) {
      // The summary still reports the document.
    }
    return result;
  }

  void record(const Rendered_document& result) {
    const Summary& summary = result.summary;
    totals_.add(summary);
    if (!summary.failure.empty()) {
      progress_.print_line(error_message(summary.name, summary.failure));
    } else if (options_.verbose && !summary.is_unchanged) {
      progress_.print_line(error_message(
          summary.name, plural(summary.maps, "map") + ", " + plural(summary.layers, "layer") +
                            ", " + plural(summary.losses, "loss", "losses")));
    }
    if (!options_.quiet) progress_.print(result.messages);
    progress_.count(totals_);
  }

  Exit_code exit_code() const {
    if (options_.view == View::broken && totals_.matches != 0) return Exit_code::some_broken;
    if (totals_.unreadable != 0 || !inputs_.failures.empty()) return Exit_code::some_unreadable;
    const bool lossy = totals_.losses + totals_.unchanged_with_losses != 0;
    return options_.strict && lossy ? Exit_code::some_errors : Exit_code::all_read;
  }

  const Options& options_;
  const Inputs& inputs_;
  Kept_lines* kept_;
  Source_places places_;
  Progress progress_;
  Totals totals_;
};

// False if the old inventory is none.
bool keep_lines(const Options& options, Inputs& inputs, std::optional<Kept_lines>& kept) {
  const std::string name = utf8_of_path(options.output);
  if (!file_status(options.output)) return true;
  auto old = Inventory_file::open(options.output);
  if (!old) {
    print_stderr(error_message(name, "is no inventory, and not overwritten") + "\n");
    return false;
  }
  kept.emplace(std::move(old), options.inputs, inputs);
  return true;
}

Exit_code run_options(Options& options) {
  Inputs inputs = find_inputs(options);
  options.single = inputs.single;
  for (const std::string& failure : inputs.failures) {
    print_stderr("mxdinfo: " + escape_controls(failure) + "\n");
  }
  const bool single_document_format =
      options.format == Format::xml || options.format == Format::dump;
  const bool into_folder = single_document_format && (!inputs.single || is_folder(options.output));
  if (into_folder && options.output.empty()) {
    print_stderr("mxdinfo: xml and dump of several documents need -o FOLDER\n");
    return Exit_code::wrong_usage;
  }
  if (!options.output.empty() && is_input(options.output, options, inputs)) {
    print_stderr(error_message(utf8_of_path(options.output), "is an input, and not overwritten") +
                 "\n");
    return Exit_code::wrong_usage;
  }
  // Without the list, every document would leave the inventory.
  if (options.update && inputs.list_failed) return Exit_code::some_unreadable;
  std::optional<Kept_lines> kept;
  if (options.update && !keep_lines(options, inputs, kept)) return Exit_code::wrong_usage;
  const bool into_pages = options.format == Format::html && is_folder(options.output);
  const auto pages = into_pages ? divide_into_pages(inputs.paths) : std::vector<Page>();
  Run run(options, inputs, kept ? &*kept : nullptr, options.output.empty() && is_terminal(stdout));
  if (into_pages) return run.write_pages(pages);
  if (into_folder) return run.save_each();
  return single_document_format ? run.save_document() : run.write_all();
}

// Scarce memory can end the run in a destructor: those of JSON values allocate.
[[noreturn]] void end_run() {
  remove_unfinished_output();
  static_cast<void>(std::fputs("mxdinfo: an unexpected error ended the run\n", stderr));
  std::_Exit(static_cast<int>(Exit_code::some_unreadable));
}

}  // namespace

int run(int argc, const char* const* argv) {
  std::set_terminate(end_run);
  try {
    auto parsed = parse_options(argc, argv);
    if (const auto* code = std::get_if<Exit_code>(&parsed)) return static_cast<int>(*code);
    auto& options = std::get<Options>(parsed);
    return static_cast<int>(options.diff ? run_diff(options) : run_options(options));
  } catch (const std::bad_alloc&) {
    print_stderr("mxdinfo: out of memory\n");
  } catch (const std::exception&) {
    print_stderr("mxdinfo: an unexpected error ended the run\n");
  }
  return static_cast<int>(Exit_code::some_unreadable);
}

}  // namespace mxdinfo
