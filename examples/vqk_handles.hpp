// vqk_file_mxd.h for C++: a document that frees itself, lists for range-based for, texts as UTF-8.
// Not part of the library: copy it into your project and change it as you like.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "vqk_file_mxd.h"

namespace vqk {

// The items of a list handle.
template <class List, class Size, class Item>
struct Items {
  Items(const List* from, Size (*size)(const List*), const Item* (*get_item)(const List*, int32_t))
      : list(from), count(static_cast<int32_t>(size(from))), get(get_item) {}

  struct Iterator {
    const Items* items;
    int32_t index;
    const Item* operator*() const { return items->get(items->list, index); }
    Iterator& operator++() { return ++index, *this; }
    bool operator!=(const Iterator& other) const { return index != other.index; }
  };
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, count}; }

  const List* list;
  int32_t count;
  const Item* (*get)(const List*, int32_t);
};

// A loaded document. All handles below it are valid as long as it exists. A document that was moved
// from must not be used.
class Document : std::unique_ptr<vq_mxd_mxd, void (*)(vq_mxd_mxd*)> {
 public:
  using unique_ptr::get;
  explicit Document(const std::filesystem::path& path)
      : unique_ptr(vq_mxd_mxd_create(), vq_mxd_mxd_destroy) {
    if (!get() || !vq_mxd_mxd_load(get(), path.string<vq_mxd_char>().c_str())) {
      throw std::runtime_error(path.string() + ": not readable as a map document");
    }
  }
  auto maps() const& {
    return Items(vq_mxd_mxd_get_maps(get()), vq_mxd_maps_get_size, vq_mxd_maps_get);
  }
  // The maps of a temporary document would not outlive the expression.
  auto maps() const&& = delete;
};

// Surrogates become "?".
inline std::string utf8(const vq_mxd_char* text) {
  std::string result;
  for (; *text != 0; ++text) {
    const unsigned c = *text >= 0xD800 && *text < 0xE000 ? '?' : *text;
    if (c >= 0x800) result += static_cast<char>(0xE0 | c >> 12);
    if (c >= 0x80) result += static_cast<char>(c >= 0x800 ? 0x80 | (c >> 6 & 0x3F) : 0xC0 | c >> 6);
    result += static_cast<char>(c >= 0x80 ? 0x80 | (c & 0x3F) : c);
  }
  return result;
}

}  // namespace vqk
