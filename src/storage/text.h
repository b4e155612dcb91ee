// Text as documents store it (UTF-16) and as the outputs contain it (8-bit).
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "storage/stream.h"
#include "vqk_file_mxd.h"

namespace mxd {

using Wide_char = vq_mxd_char;
using Wide_string = std::basic_string<Wide_char>;
using Wide_view = std::basic_string_view<Wide_char>;

// ASCII text as UTF-16, for literals that must work with either type of unit.
Wide_string from_ascii(std::string_view ascii);

// Converts UTF-16 to the library's 8-bit code page, up to the first NUL.
std::string to_narrow(Wide_view text);

// Converts the library's 8-bit code page to UTF-16, NULs included.
Wide_string narrow_to_wide(std::string_view text);

// Removes leading and trailing blanks, CRs, TABs and LFs.
Wide_view trim(Wide_view text);

// The text before its first NUL, where both outputs end it.
std::string_view truncate_at_nul(std::string_view text);

// Two upper-case digits for each byte, with the separator between bytes: "00 1A FF".
std::string bytes_to_hex(std::span<const std::uint8_t> bytes, std::string_view separator);
void append_hex(std::string& out, std::span<const std::uint8_t> bytes, std::string_view separator);

}  // namespace mxd
