// The objects of one load by their number, for the back-references to them.
#pragma once

#include <cstdint>
#include <unordered_map>

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
    by_number_.try_emplace(number, entry);
  }

  Registered_object* find(std::uint16_t number) {
    const auto found = by_number_.find(number);
    return found == by_number_.end() ? nullptr : &found->second;
  }

 private:
  // A table of all numbers would cost megabytes as soon as one is high.
  std::unordered_map<std::uint16_t, Registered_object> by_number_;
};

}  // namespace mxd
