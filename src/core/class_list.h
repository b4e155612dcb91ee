// Closed lists of classes. Factories, searches and every dispatch over a class follow from these
// lists, so that a class which one of them forgets does not compile.
#pragma once

#include <cassert>
#include <type_traits>
#include <utility>

#include "storage/guid.h"

namespace mxd {

template <class... Classes>
struct Class_list {};

template <class... Lists>
struct Joined_lists;
template <class... Classes>
struct Joined_lists<Class_list<Classes...>> {
  using type = Class_list<Classes...>;
};
template <class... First, class... Second, class... Others>
struct Joined_lists<Class_list<First...>, Class_list<Second...>, Others...>
    : Joined_lists<Class_list<First..., Second...>, Others...> {};

// One list with the classes of all of these, in order.
template <class... Lists>
using Join = typename Joined_lists<Lists...>::type;

// Calls function(std::type_identity<Class>()) for each class of the list, in order.
template <class... Classes, class Function>
constexpr void for_each_class(Class_list<Classes...> /*list*/, Function&& function) {
  (function(std::type_identity<Classes>()), ...);
}

// True if the object is of exactly this class.
template <class Class, class Object>
bool is_of(const Object& object) {
  return object.class_id().guid == Class::clsid.guid;
}

// The object as this class, or null if it is of another class or absent. Where every class matters,
// use visit() instead.
template <class Class, class Object>
const Class* as(const Object* object) {
  return object && is_of<Class>(*object) ? static_cast<const Class*>(object) : nullptr;
}

// A visitor made of one function for each class, or for a base of several.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

// Calls the visitor with the object as its own class, which must be in the list, and returns the
// visitor's result. The visitor must accept every class of the list.
template <class Class, class... Others, class Object, class Visitor>
decltype(auto) visit_as(Class_list<Class, Others...> /*list*/, const Object& object,
                        Visitor&& visitor) {
  if constexpr (sizeof...(Others) == 0) {
    assert(is_of<Class>(object));
    return visitor(static_cast<const Class&>(object));
  } else {
    if (is_of<Class>(object)) return visitor(static_cast<const Class&>(object));
    return visit_as(Class_list<Others...>(), object, std::forward<Visitor>(visitor));
  }
}

}  // namespace mxd
