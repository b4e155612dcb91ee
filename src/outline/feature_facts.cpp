#include "outline/feature_facts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/read_helpers.h"
#include "document/layer.h"
#include "rendering/class_breaks_renderer.h"
#include "symbology/color.h"
#include "symbology/font.h"

namespace mxd {
namespace {

constexpr Guid label_classes_id = guid_from_text("1D5849F3-0D33-11D2-A26F-080009B6F22B");
constexpr std::array<Guid, 2> label_class_ids = {
    guid_from_text("01004145-0D1C-11D2-A26F-080009B6F22B"),
    guid_from_text("20664808-0D1C-11D2-A26F-080009B6F22B"),
};
constexpr Guid text_symbol_id = guid_from_text("B65A3E74-2993-11D1-9A43-0080C7EC5C96");
constexpr Guid standard_font_id = guid_from_text("0BE35203-8F91-11CE-9DE3-00AA004BB851");
constexpr Guid number_format_id = guid_from_text("7E4F4719-8E54-11D2-AAD8-000000000000");

// Other scales were read from somewhere else, and so would be what follows them.
constexpr double max_scale_denominator = 1e12;

bool read_version(Byte_view& bytes, Object_start& start, std::uint16_t& version) {
  return read_object_start(bytes, start) && read_number(bytes, version);
}

template <class Color>
Label_class::Rgb rgb_of(const Color& color) {
  Label_class::Rgb rgb;
  color.get_rgb(rgb.red, rgb.green, rgb.blue);
  return rgb;
}

// A whole color object, of the classes that are decoded. All have version 1; a color that was
// stored before has no version, and seldom looks like it.
std::optional<Label_class::Rgb> read_color(Byte_view& bytes) {
  Object_start start;
  std::uint16_t version = 0;
  if (!read_version(bytes, start, version) || version != 1) return std::nullopt;
  if (start.class_id == Tmxd_cmyk_color::clsid.guid) {
    Tmxd_cmyk_color color;
    const bool ok =
        read_numbers(bytes, color.leading_bytes[0], color.leading_bytes[1], color.cyan,
                     color.magenta, color.yellow, color.black, color.dither, color.no_use);
    return ok ? std::optional(rgb_of(color)) : std::nullopt;
  }
  if (start.class_id != Tmxd_rgb_color::clsid.guid &&
      start.class_id != Tmxd_hsv_color::clsid.guid) {
    return std::nullopt;
  }
  Tmxd_rgb_color color;
  const bool ok =
      read_numbers(bytes, color.stored_bytes[0], color.stored_bytes[1], color.stored_bytes[2],
                   color.lightness, color.a, color.b, color.dither, color.no_use);
  return ok ? std::optional(rgb_of(color)) : std::nullopt;
}

// int16, 4 bytes, a color or 16 zero bytes, the query.
std::optional<Wide_string> read_definition_query(Byte_view bytes) {
  if (!bytes.skip(2 + 4)) return std::nullopt;
  const std::uint64_t color_start = bytes.tell();
  Guid class_id;
  if (!read_guid(bytes, class_id)) return std::nullopt;
  if (!class_id.is_null()) {
    bytes.seek(color_start);
    if (!read_color(bytes)) return std::nullopt;
  }
  return read_text(bytes);
}

// ---- Labels ----

// The font of a text symbol. 36 bytes before it, the symbol states the size that the user chose,
// which the font rounds to whole pixels of a screen. The fonts of a background's markers, which
// come first, have something else there. Only names in ASCII are the same in all code pages; others
// are left out.
std::optional<Label_class::Font> read_text_font(const Byte_search& stream, std::uint64_t position,
                                                std::uint64_t end) {
  constexpr std::uint64_t size_distance = 36;
  constexpr double points_per_unit = 1e-4;
  constexpr double max_points = 10000;
  constexpr double rounding = 0.5;
  double stated = 0;
  Byte_view size = stream.view(position - size_distance, end);
  Byte_view bytes = stream.view(position, end);
  Tmxd_font font;
  if (!read_number(size, stated) || !font.read(bytes)) return std::nullopt;
  if (!(stated > 0 && stated < max_points)) return std::nullopt;
  if (!(std::abs(stated - font.size * points_per_unit) <= rounding)) return std::nullopt;
  Label_class::Font read{{}, stated};
  const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::ranges::all_of(font.font_name, is_ascii)) read.name = from_ascii(font.font_name);
  return read;
}

// The object is in [position, end).
std::optional<Label_class> read_label_class(Byte_search& stream, std::uint64_t position,
                                            std::uint64_t end) {
  Byte_view bytes = stream.view(position, end);
  Object_start start;
  std::uint16_t version = 0;
  if (!read_version(bytes, start, version)) return std::nullopt;
  auto expression = read_text(bytes);
  if (!expression) return std::nullopt;
  Label_class read{std::move(*expression), {}, {}};
  const auto symbol = stream.first(bytes.tell(), end, {&text_symbol_id, 1});
  if (!symbol) return read;
  Byte_view color = stream.view(*symbol, end);
  if (read_version(color, start, version)) read.color = read_color(color);
  std::uint64_t from = *symbol;
  while (const auto font = stream.first(from, end, {&standard_font_id, 1})) {
    read.font = read_text_font(stream, *font, end);
    if (read.font) break;
    from = *font + 1;
  }
  return read;
}

std::optional<Labels> read_labels(Byte_search& stream, std::uint64_t from, std::uint64_t end) {
  const auto place = stream.first(from + 2, end, {&label_classes_id, 1});
  if (!place) return std::nullopt;
  Byte_view bytes = stream.view(*place - 2, end);
  std::int16_t shown = 0;
  Object_start start;
  std::uint16_t version = 0;
  std::int32_t count = 0;
  if (!(read_number(bytes, shown) && read_version(bytes, start, version) &&
        read_number(bytes, count))) {
    return std::nullopt;
  }
  if ((shown != 0 && shown != -1) || version != 2 || count < 0) return std::nullopt;
  Labels labels{shown != 0, {}, false};
  auto next = stream.first(bytes.tell(), end, label_class_ids);
  for (std::int32_t i = 0; i < count && next; ++i) {
    const std::uint64_t position = *next;
    next = stream.first(position + Object_start::size, end, label_class_ids);
    auto label_class = read_label_class(stream, position, next.value_or(end));
    if (!label_class) break;
    labels.classes.push_back(std::move(*label_class));
  }
  labels.all_read = std::cmp_equal(labels.classes.size(), count);
  return labels;
}

// ---- Class breaks ----

bool is_number_format(const Guid& id) {
  return std::equal(id.bytes.begin() + 4, id.bytes.end(), number_format_id.bytes.begin() + 4);
}

// What follows the number format: the field, whether the classes ascend, int16, and 10000.
bool read_normalization(Byte_view bytes, Feature_facts& facts) {
  constexpr std::int32_t anchor = 10000;
  Byte_view field(bytes);
  std::int32_t size = 0;
  std::int16_t order = 0;
  std::int16_t unused = 0;
  std::int32_t number = 0;
  if (!read_number(bytes, size) || size < 0 || !bytes.skip(static_cast<std::uint64_t>(size)) ||
      !read_numbers(bytes, order, unused, number) || number != anchor || order < -1 || order > 1) {
    return false;
  }
  const auto text = read_text(field);
  if (!text) return false;
  facts.normalization_field = *text;
  facts.classes_ascend = order != 0;
  return true;
}

// After the legend: 18 zero bytes, a class id if the byte before it is 1, a word, and a number
// format, whose length depends on its class.
void read_class_breaks(Byte_view bytes, Feature_facts& facts) {
  constexpr std::uint64_t max_format_length = 256;
  std::uint8_t has_id = 0;
  Guid id;
  std::uint16_t word = 0;
  Object_start format;
  if (!bytes.skip(18) || !read_number(bytes, has_id) || has_id > 1) return;
  if (has_id == 1 && !read_guid(bytes, id)) return;
  if (!read_number(bytes, word) || !read_object_start(bytes, format)) return;
  if (!is_number_format(format.class_id)) return;
  const std::uint64_t fields = bytes.tell();
  for (std::uint64_t length = 0; length <= max_format_length; ++length) {
    bytes.seek(fields + length);
    if (read_normalization(bytes, facts)) return;
  }
}

}  // namespace

Feature_facts read_feature_facts(const Tmxd_feature_layer& layer, Byte_search& stream,
                                 std::uint64_t position, std::uint64_t end) {
  const auto inside = [&](std::int64_t place) {
    return place >= 0 && std::cmp_greater_equal(place, position) && std::cmp_less(place, end);
  };
  Feature_facts facts;
  std::uint64_t fields_end = position + Object_start::size;
  const auto is_scale = [](double scale) { return scale >= 0 && scale <= max_scale_denominator; };
  if (inside(layer.scales_end) && is_scale(layer.min_scale) && is_scale(layer.max_scale)) {
    fields_end = static_cast<std::uint64_t>(layer.scales_end);
    facts.definition_query = read_definition_query(stream.view(fields_end, end));
  }
  facts.labels = read_labels(stream, fields_end, end);
  const auto* renderer = as<Tmxd_class_breaks_renderer>(layer.renderer.get());
  if (renderer && inside(renderer->legend_end)) {
    const auto legend_end = static_cast<std::uint64_t>(renderer->legend_end);
    read_class_breaks(stream.view(legend_end, end), facts);
  }
  return facts;
}

}  // namespace mxd
