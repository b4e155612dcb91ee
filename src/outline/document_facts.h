// What a document says of itself, outside of its maps.
#pragma once

#include <optional>
#include <span>

#include "storage/text.h"

namespace mxd {

struct Document_facts {
  // The ArcMap version that saved it, as "10.6".
  std::optional<Wide_string> version;

  // From the document's properties; empty where the user entered nothing.
  struct Properties {
    Wide_string title;
    Wide_string author;
    Wide_string description;
    Wide_string summary;
    Wide_string tags;
    Wide_string hyperlink_base;
    Wide_string credits;
  };
  std::optional<Properties> properties;

  // The path of the last save, as its user saw it.
  std::optional<Wide_string> saved_path;
  // Days since 1899-12-30; the fraction is the time of day.
  std::optional<double> saved_date;
};

// From the streams "Version" and "Metadata", either of which may be empty. What does not fit is
// left out.
Document_facts read_document_facts(std::span<const std::uint8_t> version_stream,
                                   std::span<const std::uint8_t> metadata_stream);

}  // namespace mxd
