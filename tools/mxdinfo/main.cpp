// Shows what is in map documents.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "document/mxd.h"
#include "mxdinfo/tree.h"
#include "storage/native_path.h"

namespace {

enum Exit_code { all_read = 0, some_unreadable = 1, wrong_usage = 2 };

struct Options {
  std::vector<std::string> files;
  std::string xml_file;
  bool dump = false;
};

bool load(mxd::Tmxd_mxd& document, const std::string& file) {
  mxd::File_error_sink errors(stderr);
  if (document.load(mxd::path_from_bytes(file), errors)) return true;
  std::fprintf(stderr, "mxdinfo: %s: not readable as a map document\n", file.c_str());
  return false;
}

bool save_xml(const mxd::Tmxd_mxd& document, const std::string& xml_file) {
  if (document.save_xml(mxd::path_from_bytes(xml_file))) return true;
  std::fprintf(stderr, "mxdinfo: %s: cannot be written\n", xml_file.c_str());
  return false;
}

bool show(const Options& options, const std::string& file) {
  mxd::Tmxd_mxd document;
  if (!load(document, file)) return false;
  if (!options.xml_file.empty()) return save_xml(document, options.xml_file);
  constexpr int dump_step = 2;
  const std::string text =
      options.dump ? document.dump(0, dump_step) : mxdinfo::tree_text(document);
  return std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app("Shows the maps, layers and data sources of ArcMap map documents.", "mxdinfo");
  app.add_option("FILE", options.files, "map documents to read")->required();
  auto* dump = app.add_flag("--dump", options.dump, "print every object of FILE, field by field");
  auto* xml = app.add_option("--xml", options.xml_file, "save FILE as XML to OUT")
                  ->type_name("OUT")
                  ->excludes(dump);
  app.set_version_flag("--version", "mxdinfo " MXDINFO_VERSION);
  // A slash begins a path on every system.
  app.allow_windows_style_options(false);
  try {
    std::vector<std::string> arguments = mxd::command_line(argc, argv);
    std::reverse(arguments.begin(), arguments.end());
    app.parse(std::move(arguments));
    if ((*dump || *xml) && options.files.size() != 1) {
      throw CLI::ValidationError("FILE", "--dump and --xml take one file");
    }
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? all_read : wrong_usage;
  }
  int result = all_read;
  for (const std::string& file : options.files) {
    if (!show(options, file)) result = some_unreadable;
  }
  return result;
}
