#include "symbology/line_template.h"

#include "core/read_helpers.h"

namespace mxd {

bool Tmxd_line_template::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  items.clear();
  return read_number(stream, pattern_interval) && read_counted(stream, [&] {
           Tmxd_line_template_item item;
           if (!read_numbers(stream, item.filled, item.empty)) return false;
           items.push_back(item);
           return true;
         });
}

void Tmxd_line_template::describe(Field_writer& writer) const {
  writer.real("pattern_interval", pattern_interval);
  writer.group(xml_only("items"), [&] {
    std::int32_t list_number = 0;
    for (const Tmxd_line_template_item& item : items) {
      writer.group(xml_only("item_", ++list_number), [&] {
        writer.real("filled", item.filled);
        writer.real("empty", item.empty);
      });
    }
  });
}

}  // namespace mxd
