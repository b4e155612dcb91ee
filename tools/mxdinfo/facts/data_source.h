// The form of a layer's data and where it is, from class, path and file type alone: the texts that
// describe data depend on the language of the ArcMap that saved them.
#pragma once

#include <string>
#include <string_view>

#include "document/layer.h"

namespace mxdinfo {

// "shapefile", "file_geodatabase", "personal_geodatabase", "sde", "raster", "service", "coverage"
// or "other". A raster within a geodatabase has the geodatabase's kind.
std::string_view data_kind(const mxd::Tmxd_layer& layer);

// The dataset's path as ArcMap writes it, with the extension of a shapefile. Empty where the data
// has no path, as that of a service or an enterprise geodatabase.
std::string data_path(const mxd::Tmxd_layer& layer);

// Whether a workspace is stored relative to the document.
bool is_relative(std::string_view workspace);

}  // namespace mxdinfo
