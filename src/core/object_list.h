// An owned list of objects, in the order of the stream.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace mxd {

template <class T>
class Object_list {
 public:
  std::size_t size() const { return items_.size(); }
  bool empty() const { return items_.empty(); }
  T& operator[](std::size_t index) const { return *items_[index]; }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

  void append(std::unique_ptr<T> item) { items_.push_back(std::move(item)); }
  void clear() { items_.clear(); }
  // Empties the list and hands out what it held.
  std::vector<std::unique_ptr<T>> take() { return std::exchange(items_, {}); }

 private:
  std::vector<std::unique_ptr<T>> items_;
};

// A list of one family's members; copying it clones them. Kind states the base class that is held
// and the family.
template <class Kind>
class Cloned_list : public Object_list<typename Kind::Held> {
 public:
  Cloned_list() = default;
  Cloned_list(const Cloned_list&) = delete;
  Cloned_list& operator=(const Cloned_list& source) {
    if (this == &source) return *this;
    this->clear();
    for (const auto& item : source) {
      auto clone = Kind::family().template create_as<typename Kind::Held>(item->class_id().guid);
      clone->copy_from(*item);
      this->append(std::move(clone));
    }
    return *this;
  }
  ~Cloned_list() = default;
};

}  // namespace mxd
