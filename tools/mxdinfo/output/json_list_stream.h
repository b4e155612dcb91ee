// JSON that is written as it goes: nested lists whose elements are added one by one, so that only
// one element at a time is in memory and the whole stays within a bound.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/json_parts.h"

namespace mxdinfo {

class Json_list_stream {
 public:
  // Pretty text is indented by two blanks per level; other text is one line.
  Json_list_stream(std::size_t max_size, bool pretty) : out_(max_size), pretty_(pretty) {}

  // Begins an element of the open list, or the document if there is none. Its last empty list stays
  // open for more elements until close(); after it there may only be closing brackets. False if it
  // does not fit; close() must not be called then.
  bool open(const Json& value);
  // Adds an element to the open list. False if it does not fit.
  bool add(const Json& value);
  // The same, also beyond the bound.
  void add_end(const Json& value);
  // Closes the open list and opens another one, which is the next member of the same object.
  void next_list(std::string_view key);
  void close();

  bool is_full() const { return out_.is_full(); }
  std::string take() { return out_.take(); }

 private:
  struct Open_list {
    std::string tail;  // from the closing bracket on
    std::size_t element_indent = 0;
    bool has_elements = false;
  };

  std::string line_start(std::size_t indent) const;
  std::string element_text(const Json& value) const;
  std::string list_end() const;

  Bounded_text out_;
  bool pretty_;
  std::vector<Open_list> lists_;
};

}  // namespace mxdinfo
