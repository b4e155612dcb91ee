// The layers that a search is for.
#pragma once

#include <string>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/report.h"

namespace mxdinfo {

// Those whose data source contains a text, or whose data is missing; without a search, all.
class Layer_filter {
 public:
  explicit Layer_filter(const Options& options)
      : wanted_(fold_case(utf8_of_path(options.find_source))),
        broken_(options.view == View::broken),
        deep_(options.deep) {}

  bool is_search() const { return broken_ || !wanted_.empty(); }
  bool is_wanted(const Report& report, const Listed_layer& listed) const {
    if (!is_search()) return true;
    const auto* layer = listed.layer();
    if (!layer) return false;
    const Source_state* state = broken_ ? report.source_state(layer) : nullptr;
    return broken_ ? state && state->presence == Presence::missing
                   : source_of(*layer).contains(wanted_);
  }
  // In lower case. Empty if it is not searched in what is not decoded.
  std::string deep_text() const { return deep_ ? wanted_ : std::string(); }

 private:
  std::string wanted_;
  bool broken_;
  bool deep_;
};

}  // namespace mxdinfo
