// The classes that one kind of search looks for: its candidates, and the factory of what it finds.
#pragma once

#include <cassert>
#include <memory>
#include <span>
#include <vector>

#include "core/class_list.h"
#include "core/tmxd_obj.h"

namespace mxd {

// What a search does with a class: finds it, only creates it when its id is given, or ignores it.
enum class Search { finds, factory_only, ignores };

class Object_family {
 public:
  template <class Class>
  void add(Search search = Search::finds) {
    if (search == Search::ignores) return;
    rows_.push_back(
        {Class::clsid.guid, [] { return std::unique_ptr<Tmxd_obj>(std::make_unique<Class>()); }});
    if (search == Search::finds) candidates_.push_back(Class::clsid.guid);
  }

  std::span<const Guid> candidates() const { return candidates_; }

  // Null for a class that is not in the family.
  std::unique_ptr<Tmxd_obj> create(const Guid& class_id) const {
    for (const Row& row : rows_) {
      if (row.class_id == class_id) return row.make();
    }
    return nullptr;
  }

  // T must be a base of every class in the family.
  template <class T>
  std::unique_ptr<T> create_as(const Guid& class_id) const {
    return std::unique_ptr<T>(static_cast<T*>(create(class_id).release()));
  }

 private:
  struct Row {
    Guid class_id;
    std::unique_ptr<Tmxd_obj> (*make)();
  };
  std::vector<Row> rows_;
  std::vector<Guid> candidates_;
};

// The family of all classes of a list.
template <class List>
Object_family family_of() {
  Object_family family;
  for_each_class(List(), [&]<class Class>(std::type_identity<Class>) { family.add<Class>(); });
  return family;
}

}  // namespace mxd
