// Pages of a folder: one for the documents of each folder.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mxdinfo {

struct Page {
  // The folder of its documents.
  std::string title;
  // "page-1.html"
  std::string file;
  // Its documents among the inputs.
  std::size_t first = 0;
  std::size_t count = 0;
};

// Larger pages are slow to open.
inline constexpr std::size_t max_page_documents = 5000;

// Sorts the inputs by folder, each folder's in the order they had.
std::vector<Page> divide_into_pages(std::vector<std::string>& inputs);

}  // namespace mxdinfo
