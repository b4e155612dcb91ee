#include "mxdinfo/cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/cli/progress.h"
#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

constexpr const char* examples = R"(Examples:
  mxdinfo plan.mxd                                   what is in a document
  mxdinfo -r --format html -o maps.html Projects     a page about all documents of a folder
  mxdinfo -r --find-source OLDSERVER Projects        layers that still use data on OLDSERVER
  mxdinfo -r -j 4 --format csv -o layers.csv Projects  a table of all layers

Exit code: 0 all documents were read, 1 some cannot be read, 2 wrong usage,
3 something could not be read (with --strict).)";

std::map<std::string, Format> formats() {
  return {{"text", Format::text}, {"json", Format::json}, {"ndjson", Format::ndjson},
          {"csv", Format::csv},   {"xml", Format::xml},   {"dump", Format::dump},
          {"html", Format::html}};
}

std::map<std::string, Color_mode> color_modes() {
  return {{"auto", Color_mode::automatic},
          {"always", Color_mode::always},
          {"never", Color_mode::never}};
}

// Command-line values that Options keeps in another form.
struct Raw_options {
  Options options;
  bool dump = false;
  std::string xml_file;
  std::string inventory;
  bool layers = false, sources = false, coordinate_systems = false, symbols = false, losses = false;
};

std::string not_empty(const std::string& text) {
  return text.empty() ? "must not be empty" : "";
}

// CLI11 takes an argument in brackets for a list. A character in front of it prevents that; it is
// removed again after parsing.
constexpr char bracket_guard = '\x01';

std::vector<std::string> guarded_arguments(int argc, const char* const* argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    if (argument.starts_with('[')) argument.insert(argument.begin(), bracket_guard);
    arguments.push_back(std::move(argument));
  }
  // CLI11 expects the last argument first.
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

void remove_guards(Options& options) {
  const auto remove = [](std::string& text) {
    if (text.starts_with(bracket_guard)) text.erase(0, 1);
  };
  for (std::string& input : options.inputs) remove(input);
  for (std::string* text : {&options.files_from, &options.output, &options.find_source}) {
    remove(*text);
  }
}

void add_inputs(CLI::App& app, Options& options) {
  app.add_option("FILE", options.inputs,
                 "map documents, folders of them, or - for a document on standard input")
      ->type_name("");
  app.add_flag("-r,--recursive", options.recursive, "also look for *.mxd in subfolders");
  app.add_option("--files-from", options.files_from,
                 "read the names of documents from LIST, one a line; - is standard input")
      ->type_name("LIST");
  app.add_flag("-0,--null", options.nul_separated, "names in LIST end with NUL");
  app.add_option("-j,--jobs", options.jobs, "documents read at the same time; 0 for all cores")
      ->type_name("N")
      ->check(CLI::Range(0, 256));
}

void add_outputs(CLI::App& app, Raw_options& raw) {
  Options& options = raw.options;
  auto* format =
      app.add_option("-f,--format", options.format,
                     "text (default), json, ndjson, csv, html; of one document xml, dump")
          ->type_name("FORMAT")
          ->transform(CLI::CheckedTransformer(formats()).description(""));
  app.add_option("-o,--output", options.output, "write to FILE, not to standard output")
      ->type_name("FILE")
      ->check(not_empty);
  auto* dump = app.add_flag("--dump", raw.dump, "the same as --format dump")->excludes(format);
  app.add_option("--xml", raw.xml_file, "the same as --format xml -o OUT")
      ->type_name("OUT")
      ->check(not_empty)
      ->excludes(dump)
      ->excludes(format);
}

void add_inventory_options(CLI::App& app, Raw_options& raw) {
  auto* group = app.add_option_group("Inventory", "what changed since the last run");
  auto* update =
      group
          ->add_option("--update", raw.inventory,
                       "write ndjson to INVENTORY; read only documents that changed since")
          ->type_name("INVENTORY")
          ->check(not_empty);
  for (const char* other : {"--output", "--format", "--dump", "--xml"}) {
    update->excludes(app.get_option(other));
  }
  group
      ->add_flag("--diff", raw.options.diff,
                 "what changed from one FILE to the next: documents or inventories (text, json)")
      ->excludes(update);
}

void add_views(CLI::App& app, Raw_options& raw) {
  auto* views = app.add_option_group("Views", "parts of the text");
  views->add_flag("--layers", raw.layers, "a line for each layer");
  views->add_flag("--sources", raw.sources, "the data sources and who uses them");
  views->add_flag("--crs", raw.coordinate_systems, "the coordinate systems and who uses them");
  views->add_flag("--symbols", raw.symbols, "the legends, each symbol with its layers");
  views->add_flag("--losses", raw.losses, "what could not be read (text, csv, json, ndjson)");
  views
      ->add_option("--find-source", raw.options.find_source,
                   "the layers whose data source contains TEXT, capitals or not (text, csv)")
      ->type_name("TEXT")
      ->check(not_empty);
  views->require_option(0, 1);
}

void add_general_options(CLI::App& app, Options& options) {
  auto* quiet = app.add_flag("-q,--quiet", options.quiet, "report only files that cannot be read");
  app.add_flag("-v,--verbose", options.verbose, "print one line about each document")
      ->excludes(quiet);
  app.add_option("--color", options.color_mode, "auto (default), always, never")
      ->type_name("WHEN")
      ->transform(CLI::CheckedTransformer(color_modes()).description(""));
  app.add_flag("--strict", options.strict, "exit with 3 if something could not be read");
  app.set_version_flag("--version", "mxdinfo " MXDINFO_VERSION);
}

Options resolved(const Raw_options& raw) {
  Options options = raw.options;
  if (raw.dump) options.format = Format::dump;
  if (!raw.xml_file.empty()) {
    options.format = Format::xml;
    options.output = raw.xml_file;
  }
  if (!raw.inventory.empty()) {
    options.format = Format::ndjson;
    options.output = raw.inventory;
    options.update = true;
  }
  options.view = raw.layers               ? View::layers
                 : raw.sources            ? View::sources
                 : raw.coordinate_systems ? View::coordinate_systems
                 : raw.symbols            ? View::symbols
                 : raw.losses             ? View::losses
                                          : View::tree;
  remove_guards(options);
  options.color =
      options.color_mode == Color_mode::always ||
      (options.color_mode == Color_mode::automatic && options.output.empty() && color_is_welcome());
  return options;
}

[[noreturn]] void wrong(const char* name, const char* message) {
  throw CLI::ValidationError(name, message);
}

void check_diff(const Options& options, bool plain) {
  if (options.inputs.size() != 2 || !options.files_from.empty()) {
    wrong("--diff", "takes two files: the old one and the new one");
  }
  const bool shown = options.format == Format::text || options.format == Format::json;
  if (!shown || !plain) wrong("--diff", "goes with text and json, without views and searches");
}

void check(const Options& options) {
  if (options.inputs.empty() && options.files_from.empty()) throw CLI::RequiredError("FILE");
  const auto uses_of_input =
      std::count(options.inputs.begin(), options.inputs.end(), "-") + (options.files_from == "-");
  if (uses_of_input > 1) wrong("-", "standard input can be read only once");
  const bool single_document_format =
      options.format == Format::xml || options.format == Format::dump;
  if (single_document_format && (options.inputs.size() != 1 || !options.files_from.empty())) {
    wrong("FILE", "xml and dump take one file");
  }
  const bool text = options.format == Format::text;
  const bool table = text || options.format == Format::csv;
  if (options.view == View::losses && (single_document_format || options.format == Format::html)) {
    wrong("--losses", "goes with text, csv, json and ndjson");
  }
  if (options.view != View::tree && options.view != View::losses && !text) {
    wrong("--format", "views are of the text");
  }
  const bool plain = options.view == View::tree && options.find_source.empty();
  if (options.update && !plain) wrong("--update", "does not go with views and searches");
  if (options.diff) check_diff(options, plain);
  if (!options.find_source.empty() && !table) wrong("--find-source", "goes with text and csv");
}

// The message quotes arguments, which may hold control characters.
Exit_code explain(CLI::App& app, const CLI::ParseError& error) {
  std::ostringstream help, message;
  if (app.exit(error, help, message) == 0) {
    static_cast<void>(std::fputs(help.str().c_str(), stdout));
    return Exit_code::all_read;
  }
  std::istringstream lines(message.str());
  for (std::string line; std::getline(lines, line);) {
    print_stderr(escape_controls(utf8_of_path(line)) + "\n");
  }
  return Exit_code::wrong_usage;
}

}  // namespace

std::variant<Options, Exit_code> parse_options(int argc, const char* const* argv) {
  Raw_options raw;
  CLI::App app(
      "Shows the maps, layers, data sources, coordinate systems and legends of ArcMap map "
      "documents.",
      "mxdinfo");
  app.get_formatter()->column_width(26);
  app.footer(examples);
  // A slash begins a path on every system.
  app.allow_windows_style_options(false);
  add_inputs(app, raw.options);
  add_outputs(app, raw);
  add_inventory_options(app, raw);
  add_views(app, raw);
  add_general_options(app, raw.options);
  try {
    app.parse(guarded_arguments(argc, argv));
    Options options = resolved(raw);
    check(options);
    return options;
  } catch (const CLI::ParseError& error) {
    return explain(app, error);
  }
}

}  // namespace mxdinfo
