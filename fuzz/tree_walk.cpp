#include "tree_walk.h"

#include <bit>
#include <functional>
#include <string_view>

#include "storage/text.h"
#include "walk.h"

namespace mxd::fuzz {

std::uint64_t walk_tree(const vq_mxd_mxd* document) {
  std::uint64_t hash = 0;
  const auto add = [](void* context, const walk_result* result) {
    std::uint64_t& so_far = *static_cast<std::uint64_t*>(context);
    so_far = so_far * 31 + std::bit_cast<std::uint64_t>(result->number);
    if (result->text) so_far += std::hash<std::string_view>()(result->text);
    if (result->units) so_far += std::hash<Wide_view>()(result->units);
  };
  walk_document(document, add, &hash);
  return hash;
}

}  // namespace mxd::fuzz
