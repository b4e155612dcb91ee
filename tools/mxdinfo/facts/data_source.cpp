#include "mxdinfo/facts/data_source.h"

#include <algorithm>
#include <initializer_list>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"

namespace mxdinfo {
namespace {

using namespace mxd;

bool ends_with_any(std::string_view text, std::initializer_list<std::string_view> endings) {
  return std::any_of(endings.begin(), endings.end(),
                     [&](std::string_view ending) { return text.ends_with(ending); });
}

// By the workspace alone: "file_geodatabase", ..., or empty for a folder.
std::string_view workspace_kind(std::string_view workspace) {
  const std::string path = fold_case(workspace);
  if (path.starts_with("http://") || path.starts_with("https://")) return "service";
  if (ends_with_any(path, {".gdb", ".gdb\\", ".gdb/"})) return "file_geodatabase";
  if (ends_with_any(path, {".mdb", ".accdb"})) return "personal_geodatabase";
  if (path.ends_with(".sde") || path.find("server=") != path.npos) return "sde";
  if (ends_with_any(path, {".xls", ".xlsx", ".odc", ".gds", ".gpkg", ".sqlite"})) return "other";
  return {};
}

std::string_view feature_data_kind(const Tmxd_feature_layer& layer, const Source& source) {
  const auto* name = layer.feature_class_name.get();
  if (!name) return "other";
  if (is_of<Tmxd_fgdb_feature_class_name>(*name)) return "file_geodatabase";
  const std::string_view kind = workspace_kind(source.workspace);
  if (!kind.empty()) return kind;
  if (source.feature_dataset.empty()) return source.workspace.empty() ? "other" : "shapefile";
  // In a folder, only coverages and drawings have several feature classes.
  const bool drawing = ends_with_any(fold_case(source.feature_dataset), {".dwg", ".dxf", ".dgn"});
  return drawing ? "other" : "coverage";
}

std::string_view raster_data_kind(const Tmxd_raster_layer& layer, const Source& source) {
  const auto* name = layer.raster_dataset_name.get();
  if (!name) return "other";
  if (is_of<Tmxd_fgdb_raster_dataset_name>(*name)) return "file_geodatabase";
  const std::string_view kind = workspace_kind(source.workspace);
  return kind.empty() ? "raster" : kind;
}

}  // namespace

std::string_view data_kind(const Tmxd_layer& layer) {
  const Source source = source_of(layer);
  using Kind = std::string_view;
  return visit(
      layer,
      Overloaded{
          [&](const Tmxd_feature_layer& feature) { return feature_data_kind(feature, source); },
          [&](const Tmxd_raster_layer& raster) { return raster_data_kind(raster, source); },
          [](const Tmxd_group_layer&) { return Kind("other"); },
          [](const Tmxd_fdo_graphics_layer&) { return Kind("other"); }});
}

std::string data_path(const Tmxd_layer& layer) {
  const Source source = source_of(layer);
  const std::string_view kind = data_kind(layer);
  const bool pathless = kind == "service" || kind == "sde" || kind == "other";
  if (pathless || source.workspace.empty() || source.dataset.empty()) return {};
  const bool slashes = source.workspace.find('\\') == std::string::npos &&
                       source.workspace.find('/') != std::string::npos;
  const char separator = slashes ? '/' : '\\';
  std::string path = source.workspace;
  for (const std::string& name : {source.feature_dataset, source.dataset}) {
    if (name.empty()) continue;
    if (!path.ends_with('\\') && !path.ends_with('/')) path += separator;
    path += name;
  }
  if (kind == "shapefile" && !fold_case(path).ends_with(".shp")) path += ".shp";
  return path;
}

bool is_relative(std::string_view workspace) {
  const bool on_drive = workspace.size() > 1 && workspace[1] == ':';
  const bool from_root = workspace.starts_with('\\') || workspace.starts_with('/');
  const bool address = workspace.find("://") != workspace.npos;
  return !workspace.empty() && !on_drive && !from_root && !address;
}

}  // namespace mxdinfo
