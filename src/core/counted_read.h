// Readers of fields that come by the number.
#pragma once

#include "storage/ieee_stream.h"

namespace mxd {

template <std::derived_from<Tmxd_ieee_stream> Stream, Stored_number... T>
bool read_numbers(Stream& stream, T&... out) {
  return (read_number(stream, out) && ...);
}

// int32 count, then that many items; a negative count is none. What the count claims is believed
// item by item only, up to the first that cannot be read.
template <std::derived_from<Tmxd_ieee_stream> Stream, class Read_item>
bool read_counted(Stream& stream, Read_item read_item) {
  std::int32_t count = 0;
  if (!read_number(stream, count)) return false;
  for (std::int32_t i = 0; i < count; ++i) {
    if (!read_item()) return false;
  }
  return true;
}

}  // namespace mxd
