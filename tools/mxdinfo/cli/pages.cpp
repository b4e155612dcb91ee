#include "mxdinfo/cli/pages.h"

#include <fmt/format.h>

#include <algorithm>

#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

std::string_view folder_of(std::string_view path) {
#ifdef _WIN32
  constexpr std::string_view separators = "/\\";
#else
  constexpr std::string_view separators = "/";
#endif
  const std::size_t end = path.find_last_of(separators);
  return end == path.npos ? std::string_view(".") : path.substr(0, std::max<std::size_t>(end, 1));
}

}  // namespace

std::vector<Page> divide_into_pages(std::vector<std::string>& inputs) {
  std::stable_sort(inputs.begin(), inputs.end(), [](const std::string& a, const std::string& b) {
    return folder_of(a) < folder_of(b);
  });
  std::vector<Page> pages;
  std::string_view folder;
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    if (pages.empty() || folder_of(inputs[i]) != folder ||
        pages.back().count == max_page_documents) {
      folder = folder_of(inputs[i]);
      pages.push_back({utf8_of_path(folder), fmt::format("page-{}.html", pages.size() + 1), i});
    }
    ++pages.back().count;
  }
  return pages;
}

}  // namespace mxdinfo
