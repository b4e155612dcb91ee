#include <array>
#include <bit>
#include <span>

#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/marker_shapes.h"
#include "mxdinfo/facts/symbol_text.h"
#include "mxdinfo/output/json_parts.h"
#include "symbology/symbol_classes.h"

namespace mxdinfo {
namespace {

using namespace mxd;

// "mxd_rgb_color" without "mxd_" and the ending.
std::string inner_name(std::string_view type, std::string_view ending) {
  constexpr std::string_view prefix = "mxd_";
  return std::string(type.substr(prefix.size(), type.size() - prefix.size() - ending.size()));
}

Json name_json(std::optional<std::string_view> name) {
  return name ? Json(*name) : Json(nullptr);
}

Json cap_json(std::int32_t cap) {
  return name_json(name_at(std::array{"butt", "round", "square"}, cap));
}

Json join_json(std::int32_t join) {
  return name_json(name_at(std::array{"miter", "round", "bevel"}, join));
}

Json color_json(const Tmxd_color_slot& slot) {
  const auto* color = slot.get();
  if (!color) return nullptr;
  return {{"rgb", color_hex(*color)},
          {"off", color->get_no_use_flag()},
          {"dither", color->get_dither_flag()},
          {"model", inner_name(color->type_name(), "_color")}};
}

Json font_json(const Tmxd_font& font) {
  return {{"name", utf8_of_narrow(truncate_at_nul(font.font_name))},
          {"size", font.size_in_points()},
          {"weight", font.weight},
          {"charset", font.charset},
          {"italic", font.italic()},
          {"underline", font.underline()},
          {"strikethrough", font.strikethrough()}};
}

Json template_json(const Tmxd_line_template& line_template) {
  if (!line_template.exists) return nullptr;
  Json items = Json::array();
  for (const auto& item : line_template.items) {
    items.push_back({{"filled", item.filled}, {"empty", item.empty}});
  }
  return {{"interval", line_template.pattern_interval}, {"items", std::move(items)}};
}

Json decoration_json(const Tmxd_line_decoration& decoration) {
  Json elements = Json::array();
  for (const auto* item : decoration.elements) {
    visit(*item, [&](const Tmxd_simple_line_decoration_element& element) {
      elements.push_back({{"marker", symbol_json(element.marker.get())},
                          {"positions", element.positions},
                          {"rotates", element.unfixed_angle == 0},
                          {"flip_first", element.flip_first != 0},
                          {"flip_all", element.flip_all != 0}});
    });
  }
  return elements;
}

double double_at(std::span<const std::uint8_t> bytes, std::size_t at) {
  std::uint64_t bits = 0;
  for (std::size_t i = 8; i-- > 0;) bits = bits << 8 | bytes[at + i];
  return std::bit_cast<double>(bits);
}

void add(Json& json, const Tmxd_simple_marker_symbol& symbol) {
  json["style"] = name_json(marker_style_name(symbol.simple_marker_style));
  json["color"] = color_json(symbol.color);
  json["size"] = symbol.size;
  json["angle"] = symbol.angle;
  json["offset_x"] = symbol.x_offset;
  json["offset_y"] = symbol.y_offset;
  json["outline"] = symbol.outline_flag != 0;
  json["outline_width"] = symbol.outline_width;
  json["outline_color"] = color_json(symbol.outline_color);
}

Json shape_json(const Marker_shape* shape) {
  if (!shape) return nullptr;
  return {{"name", shape->name}, {"filled", shape->filled}, {"size", shape->size}};
}

void add(Json& json, const Tmxd_char_marker_symbol& symbol) {
  json["character"] = symbol.unicode;
  json["font_name"] = utf8(symbol.font_name);
  json["font"] = font_json(symbol.font);
  json["shape"] = shape_json(shape_of(symbol));
  json["color"] = color_json(symbol.color_slot);
  json["size"] = symbol.size;
  json["angle"] = symbol.angle;
  json["offset_x"] = symbol.x_offset;
  json["offset_y"] = symbol.y_offset;
}

void add(Json& json, const Tmxd_arrow_marker_symbol& symbol) {
  json["color"] = color_json(symbol.color_slot);
  json["size"] = symbol.size;
  json["width"] = symbol.width;
  json["angle"] = symbol.angle;
  json["offset_x"] = symbol.x_offset;
  json["offset_y"] = symbol.y_offset;
}

// The bytes after the colors hold angle, size and offset; the symbol's trailer follows.
void add(Json& json, const Tmxd_picture_marker_symbol& symbol) {
  constexpr std::size_t trailer_at = 48;
  constexpr std::uint8_t trailer = 13;
  const std::span<const std::uint8_t> bytes = symbol.bytes1;
  const bool fits = bytes.size() > trailer_at && bytes[trailer_at] == trailer;
  const auto number = [&](std::size_t at) {
    return fits ? Json(double_at(bytes, at)) : Json(nullptr);
  };
  json["size"] = number(8);
  json["angle"] = number(0);
  json["offset_x"] = number(16);
  json["offset_y"] = number(24);
  json["colors"] = Json::array({color_json(symbol.color_slot1), color_json(symbol.color_slot2)});
}

void add(Json& json, const Tmxd_simple_line_symbol& symbol) {
  json["style"] = name_json(line_style_name(symbol.line_type));
  json["color"] = color_json(symbol.color_slot);
  json["width"] = symbol.width;
}

void add(Json& json, const Tmxd_cartographic_line_symbol& symbol) {
  json["color"] = color_json(symbol.color_slot);
  json["width"] = symbol.width;
  json["offset"] = symbol.offset;
  json["cap"] = cap_json(symbol.cap);
  json["join"] = join_json(symbol.join);
  json["template"] = template_json(symbol.line_template);
  json["decorations"] = decoration_json(symbol.line_decoration);
}

void add(Json& json, const Tmxd_hash_line_symbol& symbol) {
  json["color"] = color_json(symbol.color_slot);
  json["width"] = symbol.width;
  json["angle"] = symbol.angle;
  json["offset"] = symbol.offset;
  json["cap"] = cap_json(symbol.cap);
  json["join"] = join_json(symbol.join);
  json["template"] = template_json(symbol.line_template);
  json["line"] = symbol_json(symbol.line_slot.get());
}

void add(Json& json, const Tmxd_marker_line_symbol& symbol) {
  json["offset"] = symbol.offset;
  json["template"] = template_json(symbol.line_template);
  json["marker"] = symbol_json(symbol.pattern_marker.get());
}

void add(Json& json, const Tmxd_simple_fill_symbol& symbol) {
  json["color"] = color_json(symbol.color_slot);
  json["outline"] = symbol_json(symbol.outline.get());
}

void add(Json& json, const Tmxd_line_fill_symbol& symbol) {
  json["angle"] = symbol.angle;
  json["offset"] = symbol.offset;
  json["separation"] = symbol.separation;
  json["pattern"] = symbol_json(symbol.pattern.get());
  json["outline"] = symbol_json(symbol.outline.get());
}

void add(Json& json, const Tmxd_marker_fill_symbol& symbol) {
  json["random"] = symbol.random != 0;
  json["offset_x"] = symbol.offset_x;
  json["offset_y"] = symbol.offset_y;
  json["separation_x"] = symbol.separation_x;
  json["separation_y"] = symbol.separation_y;
  json["marker"] = symbol_json(symbol.marker_slot.get());
  json["outline"] = symbol_json(symbol.outline_slot.get());
}

void add(Json& json, const Tmxd_picture_fill_symbol& symbol) {
  json["colors"] = Json::array({color_json(symbol.color_slot1), color_json(symbol.color_slot2),
                                color_json(symbol.color_slot3)});
  json["outline"] = symbol_json(symbol.outline.get());
}

template <class List>
void add_layers(Json& json, const List& layers) {
  json["layers"] = Json::array();
  for (const auto& layer : layers) json["layers"].push_back(symbol_json(layer));
}

void add(Json& json, const Tmxd_multilayer_marker_symbol& symbol) {
  add_layers(json, symbol.marker_symbols);
}
void add(Json& json, const Tmxd_multilayer_line_symbol& symbol) {
  add_layers(json, symbol.line_symbols);
}
void add(Json& json, const Tmxd_multilayer_fill_symbol& symbol) {
  add_layers(json, symbol.fill_symbols);
}

}  // namespace

Json symbol_json(const Tmxd_symbol* symbol) {
  if (!symbol) return nullptr;
  Json json = {{"kind", inner_name(symbol->type_name(), "_symbol")},
               {"enabled", symbol->enabled != 0},
               {"locked", symbol->locked != 0},
               {"tag", utf8(symbol->tag)}};
  visit(*symbol, [&](const auto& known) { add(json, known); });
  return json;
}

}  // namespace mxdinfo
