// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace mxdinfo {

enum class Exit_code {
  all_read = 0,
  some_unreadable = 1,  // or the output cannot be written
  wrong_usage = 2,
  some_errors = 3,  // with --strict
};

enum class Format { text, json, ndjson, csv, xml, dump, html };
enum class View { tree, layers, sources, coordinate_systems, symbols, losses };
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
  std::string find_source;
  Color_mode color_mode = Color_mode::automatic;
  // Resolved from color_mode and the output.
  bool color = false;

  bool quiet = false;
  bool verbose = false;
  bool strict = false;

  // One file is named; no folder and no list. The JSON is then one object.
  bool single = false;
};

// The options, or the exit code after a message was printed.
std::variant<Options, Exit_code> parse_options(int argc, const char* const* argv);

}  // namespace mxdinfo
