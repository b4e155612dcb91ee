#include "mxdinfo/cli/run.h"

#include <fmt/format.h>

#include <new>

#include "mxdinfo/cli/batch.h"
#include "mxdinfo/cli/inputs.h"
#include "mxdinfo/cli/load.h"
#include "mxdinfo/cli/options.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/cli/progress.h"
#include "mxdinfo/facts/utf8.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

std::string complaint(const std::string& name, std::string_view what) {
  return fmt::format("mxdinfo: {}: {}", on_one_line(name), what);
}

class Output {
 public:
  Output(const Options& options, Line_ends line_ends)
      : name_(options.output.empty() ? "standard output" : utf8_of_path(options.output)),
        file_(open_output(options.output, line_ends)) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() { close(); }

  std::FILE* file() const { return file_; }

  bool write(std::string_view text) {
    if (file_ && std::fwrite(text.data(), 1, text.size(), file_) != text.size()) failed_ = true;
    return good();
  }
  bool good() const { return file_ && !failed_; }

  // Whether everything arrived; complains if not.
  bool close() {
    if (file_) {
      failed_ = failed_ || std::ferror(file_) != 0;
      if ((file_ == stdout ? std::fflush(file_) : std::fclose(file_)) != 0) failed_ = true;
      if (failed_) complain();
      file_ = nullptr;
    }
    return !failed_;
  }
  void complain() const { say(complaint(name_, "cannot be written") + "\n"); }

 private:
  std::string name_;
  std::FILE* file_;
  bool failed_ = false;
};

// One run over all inputs.
class Run {
 public:
  Run(const Options& options, const Inputs& inputs, bool to_terminal)
      : options_(options),
        inputs_(inputs),
        progress_(inputs.paths.size(), !options.quiet && inputs.paths.size() > 1 &&
                                           is_terminal(stderr) && !to_terminal) {}

  // The document as XML, straight into the file: the library's own way.
  Exit_code save_xml() {
    Report report;
    load(inputs_.paths.front(), report);
    tell({summary_of(report), {}, std::move(report.lost)});
    if (!report.failure.empty()) return some_unreadable;
    Output output(options_, Line_ends::system);
    if (!output.file()) {
      output.complain();
      return some_unreadable;
    }
    report.content.write_xml(output.file());
    return output.close() ? exit_code() : some_unreadable;
  }

  Exit_code write_all() {
    const auto line_ends = options_.format == Format::dump ? Line_ends::system : Line_ends::kept;
    Output output(options_, line_ends);
    if (!output.file()) {
      output.complain();
      return some_unreadable;
    }
    const auto writer = make_writer(options_);
    output.write(writer->begin());
    std::vector<Summary> summaries;
    run_batch(
        inputs_.paths.size(), options_.jobs,
        [&](std::size_t index) { return rendered(index, *writer); },
        [&](Rendered&& result) {
          const bool written = output.write(result.text);
          tell(result);
          if (options_.format == Format::html) summaries.push_back(std::move(result.summary));
          return written;
        });
    output.write(writer->end(summaries));
    if (!output.close()) return some_unreadable;
    const bool batch = !inputs_.single || inputs_.paths.size() > 1;
    if (!options_.quiet && (batch || options_.verbose)) progress_.end(totals_);
    return exit_code();
  }

 private:
  Rendered rendered(std::size_t index, const Report_writer& writer) const {
    Report report;
    report.index = index;
    try {
      load(inputs_.paths[index], report);
      std::string text = writer.document(report);
      return {summary_of(report), std::move(text), std::move(report.lost)};
    } catch (const std::bad_alloc&) {
      Report empty;
      empty.index = index;
      empty.name = report.name;
      empty.failure = "too large for the memory";
      return {summary_of(empty), writer.document(empty), {}};
    }
  }

  void tell(const Rendered& result) {
    const Summary& summary = result.summary;
    totals_.add(summary);
    if (!summary.failure.empty()) progress_.say_line(complaint(summary.name, summary.failure));
    if (options_.verbose && summary.failure.empty()) {
      progress_.say_line(
          complaint(summary.name, fmt::format("{} maps, {} layers, {} not decoded", summary.maps,
                                              summary.layers, summary.lost)));
    }
    if (!options_.quiet) tell_lost(result);
    progress_.count(totals_);
  }

  void tell_lost(const Rendered& result) {
    if (result.lost.empty()) return;
    if (!inputs_.single) {
      progress_.say_line(complaint(result.summary.name, "some objects could not be decoded:"));
    }
    for (const Lost_object& lost : result.lost) {
      progress_.say_line(mxd::error_line({lost.number, lost.type, lost.position}));
    }
  }

  Exit_code exit_code() const {
    if (totals_.unreadable != 0 || !inputs_.failures.empty()) return some_unreadable;
    return options_.strict && totals_.lost != 0 ? some_lost : all_read;
  }

  const Options& options_;
  const Inputs& inputs_;
  Progress progress_;
  Totals totals_;
};

}  // namespace

int run(int argc, const char* const* argv) {
  auto parsed = parse_options(argc, argv);
  if (const auto* code = std::get_if<Exit_code>(&parsed)) return *code;
  auto& options = std::get<Options>(parsed);
  const Inputs inputs = find_inputs(options);
  options.single = inputs.single;
  for (const std::string& failure : inputs.failures) {
    say("mxdinfo: " + on_one_line(failure) + "\n");
  }
  const bool of_one = options.format == Format::xml || options.format == Format::dump;
  if (of_one && !inputs.single) {
    say("mxdinfo: xml and dump take one file\n");
    return wrong_usage;
  }
  if (!options.output.empty() && is_input(options.output, inputs)) {
    say("mxdinfo: " + on_one_line(options.output) + " is to be read, and is not overwritten\n");
    return wrong_usage;
  }
  Run whole(options, inputs, options.output.empty() && is_terminal(stdout));
  return options.format == Format::xml ? whole.save_xml() : whole.write_all();
}

}  // namespace mxdinfo
