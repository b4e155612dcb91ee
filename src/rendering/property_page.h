// Property pages follow some renderers. A page consists of its class id alone; it has no number and
// appears in no output.
#pragma once

#include "core/class_list.h"
#include "core/mxd_stream.h"

namespace mxd {

struct Tmxd_unique_value_property_page {
  static constexpr Class_id clsid{"683C994E-A17B-11D1-8816-080009EC732A"};
};

struct Tmxd_graduated_color_property_page {
  static constexpr Class_id clsid{"683C994F-A17B-11D1-8816-080009EC732A"};
};

using Property_page_classes =
    Class_list<Tmxd_unique_value_property_page, Tmxd_graduated_color_property_page>;

// Moves to the end of the next page before the limit, or stays if there is none. Returns false if
// the search fails.
[[nodiscard]] bool skip_property_page(Tmxd_mxd_stream& stream, std::int64_t limit);

}  // namespace mxd
