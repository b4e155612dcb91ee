// A vector that leaves new elements uninitialized, for buffers that are overwritten at once.
#pragma once

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace mxd {

template <class T>
struct Default_init_allocator : std::allocator<T> {
  template <class Other>
  struct rebind {
    using other = Default_init_allocator<Other>;
  };

  Default_init_allocator() = default;
  template <class Other>
  Default_init_allocator(const Default_init_allocator<Other>& /*other*/) noexcept {}

  template <class Element>
  void construct(Element* at) {
    ::new (static_cast<void*>(at)) Element;
  }
  template <class Element, class... Values>
  void construct(Element* at, Values&&... values) {
    ::new (static_cast<void*>(at)) Element(std::forward<Values>(values)...);
  }
};

template <class T>
using Default_init_vector = std::vector<T, Default_init_allocator<T>>;

}  // namespace mxd
