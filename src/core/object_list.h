// An owned list of objects, in stream order.
#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace mxd {

template <class T>
class Object_list {
 public:
  // Iterates over pointers to the objects, which are never null.
  template <class Object>
  class Iterator {
   public:
    explicit Iterator(const std::unique_ptr<T>* item) : item_(item) {}
    Object* operator*() const { return item_->get(); }
    Iterator& operator++() {
      ++item_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return item_ == other.item_; }

   private:
    const std::unique_ptr<T>* item_;
  };

  std::size_t size() const { return items_.size(); }
  bool empty() const { return items_.empty(); }
  // The index must be below size().
  const T& operator[](std::size_t index) const {
    assert(index < items_.size());
    return *items_[index];
  }
  T& operator[](std::size_t index) {
    assert(index < items_.size());
    return *items_[index];
  }
  auto begin() const { return Iterator<const T>(items_.data()); }
  auto end() const { return Iterator<const T>(items_.data() + items_.size()); }
  auto begin() { return Iterator<T>(items_.data()); }
  auto end() { return Iterator<T>(items_.data() + items_.size()); }

  void append(std::unique_ptr<T> item) {
    assert(item);
    items_.push_back(std::move(item));
  }
  void clear() { items_.clear(); }
  // Empties the list and returns its objects.
  std::vector<std::unique_ptr<T>> take() { return std::exchange(items_, {}); }

 private:
  std::vector<std::unique_ptr<T>> items_;
};

// A list whose copy clones the objects. T::family() must have the class of each.
template <class T>
class Cloned_list : public Object_list<T> {
 public:
  Cloned_list() = default;
  Cloned_list(const Cloned_list&) = delete;
  Cloned_list& operator=(const Cloned_list& source) {
    if (this == &source) return *this;
    this->clear();
    for (const T* item : source) {
      std::unique_ptr<T> clone = T::family().template create_as<T>(item->class_id().guid);
      assert(clone);
      static_cast<void>(clone->copy_from(*item));
      this->append(std::move(clone));
    }
    return *this;
  }
  ~Cloned_list() = default;
};

}  // namespace mxd
