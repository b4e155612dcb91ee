// A line's dash pattern: alternating drawn and blank lengths.
#pragma once

#include <vector>

#include "core/tmxd_obj.h"

namespace mxd {

struct Tmxd_line_template_item {
  double filled = 0;
  double empty = 0;
};

class Tmxd_line_template final : public Copyable_class<Tmxd_line_template> {
 public:
  static constexpr Class_id clsid{"41093a71-cce1-11d0-bfaa-0080c7e24280"};
  static constexpr std::string_view type = "mxd_line_template";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  double pattern_interval = 0;
  std::vector<Tmxd_line_template_item> items;

 protected:
  void describe(Field_writer& writer) const override;
};

}  // namespace mxd
