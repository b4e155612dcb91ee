// The objects of one load by their number, for the back-references to them.
#pragma once

#include <cstdint>
#include <vector>

namespace mxd {

class Tmxd_obj;

// What a copy of a registered object costs: what was spent to read it, and the levels it nests.
struct Registered_object {
  const Tmxd_obj* object = nullptr;
  std::uint64_t cost = 0;
  int levels = 0;
};

// Owns nothing. The first object registered under a number keeps it.
class Object_registry {
 public:
  void add(std::uint16_t number, const Registered_object& entry) {
    if (number >= by_number_.size()) by_number_.resize(std::size_t{number} + 1);
    if (!by_number_[number].object) by_number_[number] = entry;
  }

  Registered_object* find(std::uint16_t number) {
    if (number >= by_number_.size() || !by_number_[number].object) return nullptr;
    return &by_number_[number];
  }

 private:
  std::vector<Registered_object> by_number_;
};

}  // namespace mxd
