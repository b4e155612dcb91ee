// The classes that one search looks for, in order: the candidates of the search and the factory of
// what it finds.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "core/tmxd_obj.h"

namespace mxd {

class Object_family {
 public:
  struct Row {
    Guid class_id;
    std::unique_ptr<Tmxd_obj> (*make)();
    // Made when its id is asked for, but not searched for.
    bool factory_only = false;
  };

  explicit Object_family(std::vector<Row> rows) : rows_(std::move(rows)) {
    for (const Row& row : rows_) {
      if (!row.factory_only) candidates_.push_back(row.class_id);
    }
  }

  std::span<const Guid> candidates() const { return candidates_; }

  // Null for a class that is not of the family.
  std::unique_ptr<Tmxd_obj> create(const Guid& class_id) const {
    for (const Row& row : rows_) {
      if (row.class_id == class_id) return row.make();
    }
    return nullptr;
  }

  // T is a class that all of the family are of.
  template <class T>
  std::unique_ptr<T> create_as(const Guid& class_id) const {
    return std::unique_ptr<T>(static_cast<T*>(create(class_id).release()));
  }

 private:
  std::vector<Row> rows_;
  std::vector<Guid> candidates_;
};

template <class Class>
Object_family::Row family_row() {
  return {Class::clsid.guid, [] { return std::unique_ptr<Tmxd_obj>(std::make_unique<Class>()); }};
}

}  // namespace mxd
