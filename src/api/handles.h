// Handles are addresses: an object's handle is that of its Tmxd_obj, any other's its own.
#pragma once

#include <type_traits>

#include "core/object_list.h"
#include "core/tmxd_obj.h"
#include "vqk_file_mxd.h"

namespace mxd::api {

// What an object handle stands for; the caller vouches for the class.
template <class T, class Handle>
const T& object(const Handle* handle) {
  return static_cast<const T&>(*reinterpret_cast<const Tmxd_obj*>(handle));
}

// The handle of an object, null for none.
template <class Handle>
const Handle* object_handle(const Tmxd_obj* object) {
  return reinterpret_cast<const Handle*>(object);
}

// Lists and records that are members of an object.
template <class T, class Handle>
const T& member(const Handle* handle) {
  return *reinterpret_cast<const T*>(handle);
}

// The handle of a member, be it an object or not.
template <class Handle, class T>
const Handle* handle_of(const T& part) {
  if constexpr (std::is_base_of_v<Tmxd_obj, T>) {
    return object_handle<Handle>(&part);
  } else {
    return reinterpret_cast<const Handle*>(&part);
  }
}

// Lists are handed out as what all lists of such items are.
template <class Handle, class T>
const Handle* list_handle(const Object_list<T>& list) {
  return handle_of<Handle>(list);
}

template <class T, class Handle>
std::int64_t list_size(const Handle* handle) {
  return static_cast<std::int64_t>(member<Object_list<T>>(handle).size());
}

// Null for an index outside.
template <class Item, class T>
const Item* item_at(const Object_list<T>& list, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= list.size()) return nullptr;
  return handle_of<Item>(list[static_cast<std::size_t>(index)]);
}

template <class T, class Item, class Handle>
const Item* list_item(const Handle* handle, std::int32_t index) {
  return item_at<Item>(member<Object_list<T>>(handle), index);
}

}  // namespace mxd::api
