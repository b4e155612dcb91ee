// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace mxdinfo {

enum Exit_code { all_read = 0, some_unreadable = 1, wrong_usage = 2, some_lost = 3 };

enum class Format { text, json, ndjson, csv, xml, dump, html };
enum class View { tree, layers, sources, coordinate_systems, symbols };
enum class Color_mode { automatic, always, never };

struct Options {
  std::vector<std::string> inputs;
  bool recursive = false;
  std::string files_from;
  bool nul_separated = false;
  unsigned jobs = 1;

  Format format = Format::text;
  std::string output;
  View view = View::tree;
  std::string find_source;
  Color_mode color_mode = Color_mode::automatic;
  // What the mode and the output come to.
  bool color = false;

  bool quiet = false;
  bool verbose = false;
  bool strict = false;

  // One file was named, no folder and no list: the JSON is then one object.
  bool single = false;
};

// The options, or the code to end with, everything being said.
std::variant<Options, Exit_code> parse_options(int argc, const char* const* argv);

}  // namespace mxdinfo
