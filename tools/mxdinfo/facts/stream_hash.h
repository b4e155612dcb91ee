// A short name for the content of a stream.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace mxdinfo {

// 16 hexadecimal digits: MurmurHash64A with seed 0. It distinguishes copies from changes, but is no
// proof against forgery.
std::string stream_hash(std::span<const std::uint8_t> bytes);

}  // namespace mxdinfo
