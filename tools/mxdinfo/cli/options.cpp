#include "mxdinfo/cli/options.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string_view>
#include <utility>

#include "mxdinfo/cli/check_options.h"
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
3 something could not be read (with --strict), 4 data was not found (with --broken).)";

template <class Value>
using Choices = std::span<const std::pair<std::string_view, Value>>;

constexpr std::pair<std::string_view, Format> formats[] = {
    {"text", Format::text}, {"json", Format::json}, {"ndjson", Format::ndjson},
    {"csv", Format::csv},   {"html", Format::html}, {"xml", Format::xml},
    {"dump", Format::dump}};

constexpr std::pair<std::string_view, Color_mode> color_modes[] = {
    {"auto", Color_mode::automatic}, {"always", Color_mode::always}, {"never", Color_mode::never}};

// Replaces the word by the number of its value.
template <class Value>
CLI::Validator one_of(Choices<Value> choices) {
  return CLI::Validator(
      [choices](std::string& text) {
        std::string words;
        for (const auto& [word, value] : choices) {
          if (text == word) {
            text = std::to_string(static_cast<int>(value));
            return std::string();
          }
          words.append(words.empty() ? "" : ", ").append(word);
        }
        return fmt::format("\"{}\" is none of {}", text, words);
      },
      "");
}

// Command-line values that Options keeps in another form.
struct Raw_options {
  Options options;
  std::optional<Format> format;
  bool dump = false;
  std::string xml_file;
  std::string inventory;
  bool no_bom = false, no_formula_guard = false;
  bool layers = false, sources = false, coordinate_systems = false, symbols = false, fonts = false;
  bool losses = false, broken = false;
};

// Leaves out which options exclude each other: messages about wrong usage name them.
class Help_formatter final : public CLI::Formatter {
 public:
  std::string make_option_opts(const CLI::Option* option) const override {
    const std::string type = option->get_type_name();
    return type.empty() ? type : " " + type;
  }
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
  app.add_flag("-r,--recursive", options.recursive, "also look for documents in subfolders");
  app.add_option("--files-from", options.files_from,
                 "read the names of documents from LIST, one a line; - is standard input")
      ->type_name("LIST");
  app.add_flag("-0,--null", options.nul_separated, "names in LIST end with NUL");
  app.add_option("-j,--jobs", options.jobs, "documents read at the same time; 0 for all cores")
      ->type_name("N")
      ->check(CLI::Range(0, 256).description(""));
}

void add_outputs(CLI::App& app, Raw_options& raw) {
  Options& options = raw.options;
  auto* format = app.add_option("-f,--format", raw.format,
                                "text (default), json, ndjson, csv, html, xml, dump")
                     ->type_name("FORMAT")
                     ->transform(one_of(Choices<Format>(formats)));
  app.add_option("-o,--output", options.output,
                 "write to FILE, not to standard output; xml and dump of several documents to a "
                 "folder")
      ->type_name("FILE")
      ->check(not_empty);
  auto* dump = app.add_flag("--dump", raw.dump, "the same as --format dump")->excludes(format);
  app.add_option("--xml", raw.xml_file, "the same as --format xml -o OUT")
      ->type_name("OUT")
      ->check(not_empty)
      ->excludes(dump)
      ->excludes(format);
  app.add_flag("--no-bom", raw.no_bom, "csv without a byte order mark");
  app.add_flag("--no-formula-guard", raw.no_formula_guard,
               "csv without apostrophes in front of formulas");
}

// Splits at the first equals sign; the guard is that of names in brackets.
std::string add_mapping(std::vector<Path_mapping>& mappings, const std::string& text) {
  const std::size_t begin = text.starts_with(bracket_guard) ? 1 : 0;
  const std::size_t end = text.find('=');
  if (end == std::string::npos || end == begin || end + 1 == text.size()) {
    return "\"" + text.substr(begin) + "\" is not like C:\\data=/mnt/data";
  }
  mappings.push_back({text.substr(begin, end - begin), text.substr(end + 1)});
  return {};
}

void add_source_options(CLI::App& app, Options& options) {
  auto* group = app.add_option_group("Data", "whether the data of the layers is there");
  group->add_flag("--check-sources", options.check_sources,
                  "look for the data of each layer (text, csv, json, ndjson, html)");
  group
      ->add_option_function<std::vector<std::string>>(
          "--map",
          [&options](const std::vector<std::string>& texts) {
            for (const std::string& text : texts) {
              const std::string error = add_mapping(options.mappings, text);
              if (!error.empty()) throw CLI::ValidationError("--map", error);
            }
          },
          "where a folder of the documents is here: C:\\data=/mnt/data")
      ->type_name("STORED=HERE")
      ->allow_extra_args(false);
}

void add_inventory_options(CLI::App& app, Raw_options& raw) {
  auto* group = app.add_option_group("Inventory", "what changed since the last run");
  auto* update =
      group
          ->add_option("--update", raw.inventory,
                       "write ndjson to INVENTORY; read only documents that changed since")
          ->type_name("INVENTORY")
          ->check(not_empty);
  for (const char* other : {"--output", "--dump", "--xml"}) {
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
  views->add_flag("--fonts", raw.fonts, "the fonts of markers and labels and who uses them");
  views->add_flag("--losses", raw.losses, "what could not be read (text, csv, json, ndjson)");
  views
      ->add_option("--find-source", raw.options.find_source,
                   "the layers whose data source contains TEXT, capitals or not")
      ->type_name("TEXT")
      ->check(not_empty);
  views->add_flag("--broken", raw.broken, "the layers whose data is not found; exits with 4");
  views->require_option(0, 1);
  auto* additions = app.add_option_group("With views", "more of them");
  additions->add_flag("--totals", raw.options.totals,
                      "a view's things counted over all documents (text, csv, json)");
  additions->add_flag("--deep", raw.options.deep, "--find-source also in what is not decoded");
}

void add_general_options(CLI::App& app, Options& options) {
  auto* quiet = app.add_flag("-q,--quiet", options.quiet, "report only files that cannot be read");
  app.add_flag("-v,--verbose", options.verbose, "print one line about each document")
      ->excludes(quiet);
  app.add_option("--color", options.color_mode, "auto (default), always, never")
      ->type_name("WHEN")
      ->transform(one_of(Choices<Color_mode>(color_modes)));
  app.add_flag("--strict", options.strict, "exit with 3 if something could not be read");
  app.set_version_flag("--version", "mxdinfo " MXDINFO_VERSION);
}

View view_of(const Raw_options& raw) {
  return raw.layers               ? View::layers
         : raw.sources            ? View::sources
         : raw.coordinate_systems ? View::coordinate_systems
         : raw.symbols            ? View::symbols
         : raw.fonts              ? View::fonts
         : raw.losses             ? View::losses
         : raw.broken             ? View::broken
                                  : View::tree;
}

Options resolved(const Raw_options& raw) {
  Options options = raw.options;
  options.format = raw.format.value_or(raw.inventory.empty() ? Format::text : Format::ndjson);
  if (raw.dump) options.format = Format::dump;
  if (!raw.xml_file.empty()) {
    options.format = Format::xml;
    options.output = raw.xml_file;
  }
  if (!raw.inventory.empty()) {
    options.output = raw.inventory;
    options.update = true;
  }
  options.view = view_of(raw);
  if (raw.broken) options.check_sources = true;
  options.byte_order_mark = !raw.no_bom;
  options.formula_guard = !raw.no_formula_guard;
  remove_guards(options);
  options.color =
      options.color_mode == Color_mode::always ||
      (options.color_mode == Color_mode::automatic && options.output.empty() && color_is_welcome());
  return options;
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
  const auto formatter = std::make_shared<Help_formatter>();
  formatter->column_width(26);
  app.formatter(formatter);
  app.footer(examples);
  // A slash begins a path on every system.
  app.allow_windows_style_options(false);
  add_inputs(app, raw.options);
  add_outputs(app, raw);
  add_source_options(app, raw.options);
  add_inventory_options(app, raw);
  add_views(app, raw);
  add_general_options(app, raw.options);
  try {
    app.parse(guarded_arguments(argc, argv));
    Options options = resolved(raw);
    if (options.inputs.empty() && options.files_from.empty()) throw CLI::RequiredError("FILE");
    const std::string error = usage_error(options);
    if (!error.empty()) throw CLI::ValidationError(error);
    return options;
  } catch (const CLI::ParseError& error) {
    return explain(app, error);
  }
}

}  // namespace mxdinfo
