// The stream that persisted data is decoded from, and the decoders of its primitives.
//
// Everything is little-endian and packed. A decoder returns false at the first read or check that
// fails. Strings then still have their declared length; what could not be read is zero.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>

#include "storage/guid.h"
#include "storage/stream.h"
#include "storage/text.h"

namespace mxd {

class Tmxd_ieee_stream : public Tmxd_stream {};

// Longer strings are treated as corrupt data.
inline constexpr std::int32_t max_string_size = 9999;

template <class T>
concept Stored_number = std::integral<T> || std::same_as<T, double>;

// Templates on the concrete stream class, so that reading a number costs no virtual call.
template <std::derived_from<Tmxd_ieee_stream> Stream, Stored_number T>
[[nodiscard]] bool read_number(Stream& stream, T& out) {
  std::array<std::uint8_t, sizeof(T)> stored;
  if (!stream.read(stored.data(), sizeof(T), 1)) return false;
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < sizeof(T); ++i) bits |= std::uint64_t{stored[i]} << (8 * i);
  if constexpr (std::same_as<T, double>) {
    out = std::bit_cast<double>(bits);
  } else {
    out = static_cast<T>(bits);
  }
  return true;
}

// Reads an int32 count of 0 to max_string_size, then that many bytes.
[[nodiscard]] bool read_narrow_string(Tmxd_ieee_stream& stream, std::string& out);

// Reads an int32 count of bytes, even and 0 to max_string_size, then the UTF-16 units. NULs are
// kept.
[[nodiscard]] bool read_wide_string(Tmxd_ieee_stream& stream, Wide_string& out);

// Fills the span; bytes that cannot be read keep their value.
[[nodiscard]] bool read_bytes(Tmxd_ieee_stream& stream, std::span<std::uint8_t> out);

// Reads a length of one byte, then that many bytes.
[[nodiscard]] bool read_short_string(Tmxd_ieee_stream& stream, std::string& out);

// Consumes what is left of a truncated GUID. Always returns false.
bool fail_at_truncated_guid(Tmxd_ieee_stream& stream);

template <std::derived_from<Tmxd_ieee_stream> Stream>
[[nodiscard]] bool read_guid(Stream& stream, Guid& out) {
  Guid stored;
  if (!stream.read(stored.bytes.data(), 1, stored.bytes.size()))
    return fail_at_truncated_guid(stream);
  out = swap_guid_byte_order(stored);
  return true;
}

// Reads a GUID, which must be the expected one.
template <std::derived_from<Tmxd_ieee_stream> Stream>
[[nodiscard]] bool read_class_id(Stream& stream, const Guid& expected) {
  Guid found;
  return read_guid(stream, found) && found == expected;
}

// Reads two uint32; the first must be 13.
[[nodiscard]] bool read_symbol_trailer(Tmxd_ieee_stream& stream);

}  // namespace mxd
