// Handles are addresses. The handle of an object is the address of its Tmxd_obj base, the handle of
// a list is the address of its Object_list<T> base, and the handle of a record is the record's
// address.
#pragma once

#include <concepts>
#include <type_traits>

#include "core/object_list.h"
#include "core/tmxd_obj.h"
#include "vqk_file_mxd.h"

namespace mxd::api {

// Null if there is no object.
template <class Handle>
const Handle* to_handle(const Tmxd_obj* object) {
  return reinterpret_cast<const Handle*>(object);
}

// The base class that the handle of a list points to, whatever the list's own class.
template <class T>
const Object_list<T>& list_base(const Object_list<T>& list) {
  return list;
}

// The handle of an embedded object, list or record.
template <class Handle, class T>
requires(!std::is_pointer_v<T>) const Handle* to_handle(const T& member) {
  if constexpr (std::derived_from<T, Tmxd_obj>) {
    return to_handle<Handle>(static_cast<const Tmxd_obj*>(&member));
  } else if constexpr (requires { list_base(member); }) {
    return reinterpret_cast<const Handle*>(&list_base(member));
  } else {
    return reinterpret_cast<const Handle*>(&member);
  }
}

// The object, list or record of a handle. The class is not checked: the caller must know it.
template <class T, class Handle>
const T& from_handle(const Handle* handle) {
  if constexpr (std::derived_from<T, Tmxd_obj>) {
    return static_cast<const T&>(*reinterpret_cast<const Tmxd_obj*>(handle));
  } else {
    return *reinterpret_cast<const T*>(handle);
  }
}

template <class T, class Handle>
std::int64_t list_size(const Handle* handle) {
  return static_cast<std::int64_t>(from_handle<Object_list<T>>(handle).size());
}

// Null if the index is out of range.
template <class Item, class List>
const Item* item_at(const List& list, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= list.size()) return nullptr;
  return to_handle<Item>(list[static_cast<std::size_t>(index)]);
}

template <class T, class Item, class Handle>
const Item* list_item(const Handle* handle, std::int32_t index) {
  return item_at<Item>(from_handle<Object_list<T>>(handle), index);
}

}  // namespace mxd::api
