#include "mxdinfo/facts/stream_hash.h"

#include <fmt/format.h>

#include <algorithm>

namespace mxdinfo {
namespace {

constexpr std::size_t word_size = 8;

// Little-endian on every system.
std::uint64_t word_of(std::span<const std::uint8_t> bytes) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) word |= std::uint64_t{bytes[i]} << (8 * i);
  return word;
}

}  // namespace

std::string stream_hash(std::span<const std::uint8_t> bytes) {
  constexpr std::uint64_t multiplier = 0xC6A4A7935BD1E995;
  constexpr int shift = 47;
  std::uint64_t hash = bytes.size() * multiplier;
  while (bytes.size() >= word_size) {
    std::uint64_t word = word_of(bytes.first<word_size>()) * multiplier;
    word = (word ^ word >> shift) * multiplier;
    hash = (hash ^ word) * multiplier;
    bytes = bytes.subspan(word_size);
  }
  if (!bytes.empty()) hash = (hash ^ word_of(bytes)) * multiplier;
  hash = (hash ^ hash >> shift) * multiplier;
  return fmt::format("{:016x}", hash ^ hash >> shift);
}

}  // namespace mxdinfo
