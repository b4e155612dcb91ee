#include "core/load.h"

#include <algorithm>

#include "core/tmxd_obj.h"

namespace mxd {

Load::Load(Load_observer& observer, std::uint64_t stream_size)
    : observer_(observer), budget_(stream_size) {}

Load::~Load() = default;

void Load::add_copy_cost(const Tmxd_obj& object, std::uint64_t bytes) {
  registry_.add_cost(object.number, object, bytes);
}

void Load::keep_until_load_ends(std::unique_ptr<Tmxd_obj> dropped) {
  if (dropped) dropped_.push_back(std::move(dropped));
}

Load::Object_scope::Object_scope(Load& load)
    : load_(load), used_before_(load.budget_.used()), sibling_levels_(load.max_child_levels_) {
  ++load_.depth_;
  load_.max_child_levels_ = 0;
  load_.observer_.object_started();
}

Load::Object_scope::~Object_scope() {
  load_.max_child_levels_ = std::max(sibling_levels_, levels());
  --load_.depth_;
}

void Load::Object_scope::add_copied_levels(int levels) {
  load_.max_child_levels_ = std::max(load_.max_child_levels_, levels - 1);
}

void Load::Object_scope::register_object(const Tmxd_obj& object) {
  load_.registry_.add(object.number, {&object, load_.budget_.used() - used_before_, levels()});
}

}  // namespace mxd
