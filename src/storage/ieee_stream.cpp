#include "storage/ieee_stream.h"

#include <algorithm>
#include <span>

namespace mxd {
namespace {

// Reads one block if the stream holds it all, otherwise unit by unit, so that the position ends
// after the last whole unit and the rest keeps its value.
template <class Byte>
bool read_units(Tmxd_ieee_stream& stream, std::span<Byte> bytes, std::size_t unit) {
  if (stream.read(bytes.data(), unit, bytes.size() / unit)) return true;
  for (; !bytes.empty(); bytes = bytes.subspan(unit)) {
    if (!stream.read(bytes.data(), unit, 1)) return false;
  }
  return true;
}

bool read_characters(Tmxd_ieee_stream& stream, std::size_t count, std::string& out) {
  out.assign(count, '\0');
  return count == 0 || read_units(stream, std::span(out), 1);
}

}  // namespace

bool read_narrow_string(Tmxd_ieee_stream& stream, std::string& out) {
  out.clear();
  std::int32_t count = 0;
  if (!read_number(stream, count) || count < 0 || count > max_string_size) return false;
  return read_characters(stream, static_cast<std::size_t>(count), out);
}

bool read_wide_string(Tmxd_ieee_stream& stream, Wide_string& out) {
  out.clear();
  std::int32_t count = 0;
  if (!read_number(stream, count) || count < 0 || count > max_string_size || count % 2 != 0) {
    return false;
  }
  std::array<std::uint8_t, max_string_size> buffer;
  const std::size_t units = static_cast<std::size_t>(count) / 2;
  const std::span stored = std::span(buffer).first(2 * units);
  std::ranges::fill(stored, std::uint8_t{0});
  const bool ok = units == 0 || read_units(stream, stored, 2);
  out.resize(units);
  for (std::size_t i = 0; i < units; ++i) {
    out[i] = static_cast<Wide_char>(stored[2 * i] | stored[2 * i + 1] << 8);
  }
  return ok;
}

bool read_bytes(Tmxd_ieee_stream& stream, std::span<std::uint8_t> out) {
  return read_units(stream, out, 1);
}

bool read_short_string(Tmxd_ieee_stream& stream, std::string& out) {
  out.clear();
  std::uint8_t count = 0;
  return read_number(stream, count) && read_characters(stream, count, out);
}

bool fail_at_truncated_guid(Tmxd_ieee_stream& stream) {
  std::uint8_t byte = 0;
  while (read_number(stream, byte)) continue;
  return false;
}

bool read_symbol_trailer(Tmxd_ieee_stream& stream) {
  constexpr std::uint32_t symbol_trailer_mark = 13;
  std::uint32_t mark = 0;
  std::uint32_t ignored = 0;
  return read_number(stream, mark) && read_number(stream, ignored) && mark == symbol_trailer_mark;
}

}  // namespace mxd
