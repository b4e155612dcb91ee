// The stream that persisted data is decoded from, and the decoders of its primitives.
//
// Everything is little-endian and packed. A decoder answers false at the first read or check that
// fails; strings and byte runs then still have their declared length, the rest of it zero.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>

#include "storage/bytes.h"
#include "storage/guid.h"
#include "storage/stream.h"
#include "storage/text.h"

namespace mxd {

class Tmxd_ieee_stream : public Tmxd_stream {};

// A longer string is taken for misread data.
inline constexpr std::int32_t longest_string = 9999;

template <class T>
concept Stored_number = std::integral<T> || std::same_as<T, double>;

// The stream's own class is kept here and below, so that a number costs no virtual call.
template <std::derived_from<Tmxd_ieee_stream> Stream, Stored_number T>
bool read_number(Stream& stream, T& out) {
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

// int32 count of 0 to 9999, then that many bytes.
bool read_narrow_string(Tmxd_ieee_stream& stream, std::string& out);

// int32 count of bytes, even and 0 to 9999, then the UTF-16 units, closing NULs included.
bool read_wide_string(Tmxd_ieee_stream& stream, Wide_string& out);

// Fills the span; bytes that cannot be read keep their value.
bool read_bytes(Tmxd_ieee_stream& stream, std::span<std::uint8_t> out);

// One byte of length, then that many bytes.
bool read_short_string(Tmxd_ieee_stream& stream, std::string& out);

// A GUID that breaks off is consumed up to the end of the stream.
bool skip_broken_guid(Tmxd_ieee_stream& stream);

template <std::derived_from<Tmxd_ieee_stream> Stream>
bool read_guid(Stream& stream, Guid& out) {
  Guid stored;
  if (!stream.read(stored.bytes.data(), 1, stored.bytes.size())) return skip_broken_guid(stream);
  out = swap_guid_byte_order(stored);
  return true;
}

// A GUID that must be this one.
template <std::derived_from<Tmxd_ieee_stream> Stream>
bool read_class_id(Stream& stream, const Guid& expected) {
  Guid found;
  return read_guid(stream, found) && found == expected;
}

// Two uint32 of which the first must be 13.
bool read_symbol_trailer(Tmxd_ieee_stream& stream);

}  // namespace mxd
