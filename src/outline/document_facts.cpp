#include "outline/document_facts.h"

#include <algorithm>
#include <utility>

#include "core/read_helpers.h"
#include "outline/byte_view.h"

namespace mxd {
namespace {

// Descriptions are longer than what the maps' strings may be.
bool read_long_text(Byte_view& bytes, Wide_string& out) {
  std::int32_t size = 0;
  if (!read_number(bytes, size) || size < 0 || size % 2 != 0) return false;
  if (static_cast<std::uint64_t>(size) > bytes.left()) return false;
  out.resize(static_cast<std::size_t>(size) / 2);
  for (Wide_char& unit : out) {
    std::uint16_t stored = 0;
    if (!read_number(bytes, stored)) return false;
    unit = static_cast<Wide_char>(stored);
  }
  out.resize(std::min(out.size(), out.find(Wide_char{0})));
  return true;
}

template <class... Text>
bool read_long_texts(Byte_view& bytes, Text&... out) {
  return (read_long_text(bytes, out) && ...);
}

void read_metadata(Byte_view bytes, Document_facts& facts) {
  std::uint16_t form = 0;
  Document_facts::Properties read;
  Wide_string unused;
  std::int32_t unused_number = 0;
  const bool ok = read_number(bytes, form) && (form == 3 || form == 4) &&
                  read_long_texts(bytes, read.title, read.author, read.description, read.summary,
                                  unused, read.tags) &&
                  read_number(bytes, unused_number) &&
                  read_long_texts(bytes, read.hyperlink_base, unused, read.credits);
  if (!ok) return;
  facts.properties = std::move(read);
  Wide_string path;
  if (!read_long_text(bytes, path)) return;
  facts.saved_path = std::move(path);
  // 1899 to 9999: what is outside is no date.
  constexpr double last_day = 2958466;
  double date = 0;
  if (read_number(bytes, date) && date > 0 && date < last_day) facts.saved_date = date;
}

}  // namespace

Document_facts read_document_facts(std::span<const std::uint8_t> version_stream,
                                   std::span<const std::uint8_t> metadata_stream) {
  Document_facts facts;
  Byte_view version(version_stream);
  Wide_string text;
  if (read_long_text(version, text) && !text.empty()) facts.version = std::move(text);
  read_metadata(Byte_view(metadata_stream), facts);
  return facts;
}

}  // namespace mxd
