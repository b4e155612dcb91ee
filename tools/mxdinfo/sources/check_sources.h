// Looks for the data of a document's layers.
#pragma once

#include "mxdinfo/facts/report.h"
#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

// The states of the layers that have data.
Source_states check_sources(const Report& report, const Source_places& places);

// A layer's data as the document stores it: data_kind(), the members of Source, and data_path().
struct Stored_data {
  std::string kind;
  std::string workspace;
  std::string feature_dataset;
  std::string dataset;
  std::string path;
};
Source_state state_of(const Stored_data& data, const Source_places& places,
                      const Document_place& document);

// The path is that of the command line.
Document_place place_of(const std::string& path, std::string saved_path);

}  // namespace mxdinfo
