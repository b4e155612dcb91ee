// Looks for the data of a document's layers.
#pragma once

#include "mxdinfo/facts/report.h"
#include "mxdinfo/sources/source_places.h"

namespace mxdinfo {

// The states of the layers that have data.
Source_states check_sources(const Report& report, const Source_places& places);

}  // namespace mxdinfo
