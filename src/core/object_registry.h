// The objects of one load by their number, for the back-references to them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

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
    std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page) page = std::make_unique<Page>();
    Registered_object& place = (*page)[number % page_size];
    if (!place.object) place = entry;
  }

  Registered_object* find(std::uint16_t number) {
    const std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page || !(*page)[number % page_size].object) return nullptr;
    return &(*page)[number % page_size];
  }

 private:
  // Numbers ascend from 1 on in most documents, so that few pages are made.
  static constexpr std::size_t page_size = 256;
  using Page = std::array<Registered_object, page_size>;
  std::array<std::unique_ptr<Page>, (std::size_t{1} << 16) / page_size> pages_;
};

}  // namespace mxd
