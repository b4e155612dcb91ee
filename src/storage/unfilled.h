// Vectors whose new elements are not filled: what is read or built at once is not written twice.
#pragma once

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace mxd {

template <class T>
struct Unfilled_allocator : std::allocator<T> {
  template <class Other>
  struct rebind {
    using other = Unfilled_allocator<Other>;
  };

  Unfilled_allocator() = default;
  template <class Other>
  Unfilled_allocator(const Unfilled_allocator<Other>& /*other*/) noexcept {}

  template <class Element>
  void construct(Element* place) {
    ::new (static_cast<void*>(place)) Element;
  }
  template <class Element, class... Values>
  void construct(Element* place, Values&&... values) {
    ::new (static_cast<void*>(place)) Element(std::forward<Values>(values)...);
  }
};

template <class T>
using Unfilled = std::vector<T, Unfilled_allocator<T>>;

}  // namespace mxd
