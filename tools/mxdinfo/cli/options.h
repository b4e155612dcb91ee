// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

enum class Exit_code {
  all_read = 0,
  some_unreadable = 1,  // or the output cannot be written
  wrong_usage = 2,
  some_errors = 3,  // with --strict
  some_broken = 4,  // with --broken
};

enum class Format { text, json, ndjson, csv, xml, dump, html };
enum class View { tree, layers, sources, coordinate_systems, symbols, fonts, losses, broken };
enum class Color_mode { automatic, always, never };

struct Options {
  std::vector<std::string> inputs;
  bool recursive = false;
  std::string files_from;
  bool nul_separated = false;
  unsigned jobs = 1;

  Format format = Format::text;
  std::string output;
  // The output is an inventory, whose lines about unchanged documents are kept.
  bool update = false;
  // The inputs are an old and a new document, or two inventories.
  bool diff = false;
  View view = View::tree;
  // One row for each thing of the view, counted over all inputs.
  bool totals = false;
  std::string find_source;
  // Searches also what is not decoded.
  bool deep = false;
  // Looks for the data of each layer, below the mapped folders first.
  bool check_sources = false;
  std::vector<Path_mapping> mappings;
  // Of CSV: a byte order mark, and apostrophes that keep texts from being formulas.
  bool byte_order_mark = true;
  bool formula_guard = true;
  Color_mode color_mode = Color_mode::automatic;
  // Resolved from color_mode and the output.
  bool color = false;

  bool quiet = false;
  bool verbose = false;
  bool strict = false;

  // One file is named; no folder and no list. The JSON is then one object.
  bool single = false;
  // Of one HTML page among several: the folder of its documents.
  std::string page_title;
};

// The options, or the exit code after a message was printed.
std::variant<Options, Exit_code> parse_options(int argc, const char* const* argv);

}  // namespace mxdinfo
