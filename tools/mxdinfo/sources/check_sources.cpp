#include "mxdinfo/sources/check_sources.h"

#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/data_source.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/report.h"

namespace mxdinfo {
namespace {

using namespace mxd;

std::string joined(const std::string& folder, const std::string& name) {
  if (folder.empty() || name.empty()) return folder + name;
  const bool has_end = folder.ends_with('\\') || folder.ends_with('/');
  return has_end ? folder + name : folder + "\\" + name;
}

bool is_file_name(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  constexpr std::size_t max_ending = 6;
  return dot != name.npos && dot != 0 && name.size() - dot <= max_ending &&
         name.find_first_of("\\/", dot) == name.npos;
}

// The file or folder that holds the data, as stored.
std::string file_path(const Tmxd_layer& layer, std::string_view kind, const Source& source) {
  if (kind == "file_geodatabase" || kind == "personal_geodatabase") return source.workspace;
  if (kind == "coverage") {
    const bool alone = source.feature_dataset.empty();
    return joined(source.workspace, alone ? source.dataset : source.feature_dataset);
  }
  if (kind != "other") return data_path(layer);
  // Spreadsheets and databases are workspaces; a drawing holds several feature classes.
  if (is_file_name(source.workspace)) return source.workspace;
  const bool drawing = is_file_name(source.feature_dataset);
  return joined(source.workspace, drawing ? source.feature_dataset : source.dataset);
}

std::vector<std::string> missing_of_shapefile(const Folder_names& names, const std::string& path) {
  std::vector<std::string> missing;
  const std::string folder = parent_folder(path);
  const Path_parts parts = path_parts(path);
  const std::string stem = parts.back().substr(0, parts.back().rfind('.'));
  for (const char* ending : {".shp", ".shx", ".dbf"}) {
    const std::string name = stem + ending;
    if (!names.find(folder, {&name, 1})) missing.emplace_back(ending);
  }
  return missing;
}

// What data of the kind needs and the path does not have.
std::vector<std::string> missing_parts(const Folder_names& names, std::string_view kind,
                                       const std::string& path) {
  if (kind == "shapefile") return missing_of_shapefile(names, path);
  if (kind == "file_geodatabase" && !names.has_ending(path, ".gdbtable")) return {"*.gdbtable"};
  if (kind == "raster" && is_folder(path) && !names.has_ending(path, "hdr.adf")) return {"hdr.adf"};
  if (kind == "coverage") {
    if (!names.has_ending(path, ".adf")) return {"*.adf"};
    const std::string info = "info";
    if (!names.find(parent_folder(path), {&info, 1})) return {info};
  }
  return {};
}

Document_place place_of(const Report& report) {
  Document_place place;
  const std::string& path = report.name_bytes.empty() ? report.name : report.name_bytes;
  if (path != "-") place.folder = parent_folder(absolute_path(path));
  if (const auto& saved = report.outline.document.saved_path) place.saved_path = utf8(*saved);
  return place;
}

Source_state state_of(const Tmxd_layer& layer, const Source_places& places,
                      const Document_place& document) {
  const Source source = source_of(layer);
  const std::string_view kind = data_kind(layer);
  const std::string stored = file_path(layer, kind, source);
  if (kind == "sde" || kind == "service" || stored.empty()) return {};
  const auto found = places.find(stored, is_relative(source.workspace), document);
  if (!found) return {Presence::missing, places.expected(stored), {}};
  auto missing = missing_parts(places.names(), kind, found->path);
  const Presence presence = !missing.empty()     ? Presence::missing
                            : found->is_relative ? Presence::relative
                                                 : Presence::found;
  return {presence, found->path, std::move(missing)};
}

}  // namespace

Source_states check_sources(const Report& report, const Source_places& places) {
  Source_states states;
  const Document_place document = place_of(report);
  for (const Map_outline& map : report.outline.maps) {
    for (const Listed_layer& listed : listed_layers(map)) {
      const Tmxd_layer* layer = listed.layer();
      if (!layer || source_of(*layer).empty()) continue;
      states.emplace(layer, state_of(*layer, places, document));
    }
  }
  return states;
}

}  // namespace mxdinfo
