#include "tree_walk.h"

#include <bit>
#include <functional>
#include <string_view>

#include "storage/text.h"
#include "walk.h"

namespace mxd::fuzz {

std::uint64_t walk_tree(const vq_mxd_mxd* document) {
  std::uint64_t sum = 0;
  const auto add = [](void* context, const walk_answer* answer) {
    std::uint64_t& figure = *static_cast<std::uint64_t*>(context);
    figure = figure * 31 + std::bit_cast<std::uint64_t>(answer->number);
    if (answer->text) figure += std::hash<std::string_view>()(answer->text);
    if (answer->units) figure += std::hash<Wide_view>()(answer->units);
  };
  walk_document(document, add, &sum);
  return sum;
}

}  // namespace mxd::fuzz
