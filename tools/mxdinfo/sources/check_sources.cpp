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
std::string file_path(const Stored_data& data) {
  if (data.kind == "file_geodatabase" || data.kind == "personal_geodatabase") return data.workspace;
  if (data.kind == "coverage") {
    const bool alone = data.feature_dataset.empty();
    return joined(data.workspace, alone ? data.dataset : data.feature_dataset);
  }
  if (data.kind != "other") return data.path;
  // Spreadsheets and databases are workspaces; a drawing holds several feature classes.
  if (is_file_name(data.workspace)) return data.workspace;
  const bool drawing = is_file_name(data.feature_dataset);
  return joined(data.workspace, drawing ? data.feature_dataset : data.dataset);
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

}  // namespace

Document_place place_of(const std::string& path, std::string saved_path) {
  return {path == "-" ? std::string() : parent_folder(absolute_path(path)), std::move(saved_path)};
}

Source_state state_of(const Stored_data& data, const Source_places& places,
                      const Document_place& document) {
  const std::string stored = file_path(data);
  if (data.kind == "sde" || data.kind == "service" || stored.empty()) return {};
  const auto found = places.find(stored, is_relative(data.workspace), document);
  if (!found) return {Presence::missing, places.expected(stored), {}};
  auto missing = missing_parts(places.names(), data.kind, found->path);
  const Presence presence = !missing.empty()     ? Presence::missing
                            : found->is_relative ? Presence::relative
                                                 : Presence::found;
  return {presence, found->path, std::move(missing)};
}

Source_states check_sources(const Report& report, const Source_places& places) {
  Source_states states;
  const Document_place document =
      place_of(report.name_bytes.empty() ? report.name : report.name_bytes,
               utf8(report.outline.document.saved_path.value_or(Wide_string())));
  for (const Map_outline& map : report.outline.maps) {
    for (const Listed_layer& listed : listed_layers(map)) {
      const Tmxd_layer* layer = listed.layer();
      if (!layer) continue;
      const Source source = source_of(*layer);
      if (source.empty()) continue;
      const Stored_data data{std::string(data_kind(*layer)), source.workspace,
                             source.feature_dataset, source.dataset, data_path(*layer)};
      states.emplace(layer, state_of(data, places, document));
    }
  }
  return states;
}

}  // namespace mxdinfo
