// Parts of the page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mxdinfo/facts/report.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {

// Escaped, and without effect on the direction of the text around it.
std::string isolated(const std::string& text);

// The identity of an element, from 1 for the first document of the page, and layer of a document.
std::string document_id(std::size_t document_index);
std::string layer_id(std::size_t document_index, std::size_t layer);

// One document's section. A folded one shows its name and counts until it is opened.
Written_document document_section(const Report& report, std::size_t max_size, bool folded);

// A data source, coordinate system or loss, and the layer or map that has it.
struct Page_use {
  enum class Kind { source, coordinate_system, loss };

  Kind kind;
  std::string text;
  // "Layers / Roads"; empty for the document.
  std::string user;
  // Among all listed layers of the document, from 1; 0 if no layer has it.
  std::size_t layer = 0;
};

struct Document_uses {
  std::size_t document_index = 0;
  std::string name;
  std::vector<Page_use> uses;
};

// As many as have room in a table of so many bytes.
Document_uses page_uses(const Report& report, std::size_t max_size);

// Tables of the things of each kind, with links to the layers.
std::string totals_tables(const std::vector<const Document_uses*>& documents);

}  // namespace mxdinfo
