// The stream "Maps" with its lists of layers, as ArcMap writes it, and what stands after the fields
// that are decoded.
#pragma once

#include "rendering/property_page.h"
#include "support/document_records.h"
#include "symbology/color.h"

namespace mxd::test {

inline constexpr Class_id basemap_id{"DA4122BF-7B07-4158-88B0-19D342BED8BA"};
inline constexpr Class_id map_service_id{"34D94BB0-3628-4D65-B7FF-4945122F30D5"};
inline constexpr Class_id image_service_id{"477D13E7-8D68-45B6-A7FD-2EF442BCCE95"};
inline constexpr Class_id unheard_of_id{"A4BADC1B-EBED-4A29-99DC-C6334DE352AD"};
inline constexpr Class_id envelope_id{"30707212-52D5-11D0-A8F2-00608C85EDE5"};
inline constexpr Class_id labels_id{"1D5849F3-0D33-11D2-A26F-080009B6F22B"};
inline constexpr Class_id label_class_id{"01004145-0D1C-11D2-A26F-080009B6F22B"};
inline constexpr Class_id text_symbol_id{"B65A3E74-2993-11D1-9A43-0080C7EC5C96"};
inline constexpr Class_id font_id{"0BE35203-8F91-11CE-9DE3-00AA004BB851"};

// A wide string with its closing NUL.
inline Bytes text(std::string_view ascii) {
  return Bytes().wide(from_ascii(ascii) + Wide_char{0});
}

// ---- Lists ----

inline Bytes length_of(const Bytes& object) {
  return Bytes().i32(static_cast<std::int64_t>(object.size())).i32(0);
}

// Entries without their count.
inline Bytes members(std::initializer_list<Bytes> layers) {
  Bytes bytes;
  for (const Bytes& layer : layers) bytes.add(length_of(layer)).add(layer);
  return bytes;
}
inline Bytes map_entries(std::initializer_list<Bytes> layers) {
  Bytes bytes;
  for (const Bytes& layer : layers) bytes.u16(2).add(length_of(layer)).add(layer);
  return bytes;
}

inline Bytes member_list(std::initializer_list<Bytes> layers) {
  return Bytes().i32(static_cast<std::int64_t>(layers.size())).add(members(layers));
}
inline Bytes map_list(std::initializer_list<Bytes> layers) {
  return Bytes().i32(static_cast<std::int64_t>(layers.size())).add(map_entries(layers));
}

// What a map has between its name and its list: a description and a coordinate system.
inline Bytes before_list(int version = 7) {
  Bytes fields = Bytes().narrow("GEOGCS[\"G\"]").zeros(115 - 24).f64s({1e-9, 0.001, 0.001});
  return text("about it").object(Tmxd_geographic_coordinate_system::clsid, 60001, version, fields);
}

inline Bytes listed_map(int number, const char* name, const Bytes& after_name) {
  return object<Tmxd_map>(number, 52, text(name).add(after_name));
}

// ---- Layers ----

inline Bytes listed_group(int number, const char* name, const Bytes& list) {
  return object<Tmxd_group_layer>(number, 12, text(name).u16(0xFFFF).zeros(20).add(list).zeros(40));
}

inline Bytes basemap(int number, const char* name, const Bytes& list) {
  return Bytes().object(basemap_id, number, 11, text(name).i32(-1).zeros(60).add(list).zeros(9));
}

// A layer of a class that is not decoded, with its name where most have it.
inline Bytes foreign_layer(int number, const Class_id& id, const char* name,
                           const Bytes& rest = Bytes().counting(50)) {
  return Bytes().object(id, number, 3, text(name).add(rest));
}

inline Bytes image_service(int number, std::string_view name) {
  Bytes fields = Bytes().i32(23).u16(8).i32(0).u16(8);
  fields.i32(static_cast<std::int64_t>(name.size()));
  for (const char c : name) fields.u16(c);
  return Bytes().object(image_service_id, number, 3, fields.u16(0).zeros(30));
}

// A feature layer with that name, number and the two after it. What follows its scales is the rest.
inline Bytes named_feature_layer(int number, const char* name, const Bytes& rest = {}) {
  Bytes fields = text(name).add(text("Feature Layer")).u16(1).counting(4);
  fields.add(feature_class(number + 1, "a")).add(workspace(number + 2, "w"));
  fields.add(simple_renderer(number + 3)).counting(156).wide("str1").f64s({2, 1});
  return object<Tmxd_feature_layer>(number, 34, fields.add(rest));
}

// ---- After a layer's scales ----

inline Bytes rgb_color(int number, double lightness) {
  return object<Tmxd_rgb_color>(number, 1, Bytes().zeros(3).f64s({lightness, 0, 0}).u16(0));
}

inline Bytes definition_query(const Bytes& query, const Bytes& color = Bytes().null_object()) {
  return Bytes().u16(0).counting(4).add(color).add(query);
}

// A font that its symbol says to be of another size, in points, than it states itself.
inline Bytes font(std::string_view name, double stated, double own) {
  Bytes bytes = Bytes().f64(stated).zeros(28).guid(font_id.guid).i32(77).u8(1).u16(0).u8(0);
  bytes.u16(400).i32(static_cast<std::int64_t>(own * 10000));
  return bytes.u8(static_cast<int>(name.size())).raw(name);
}

inline Bytes text_symbol(int number, const Bytes& color, const Bytes& rest) {
  return Bytes().object(text_symbol_id, number, 4, Bytes(color).counting(60).add(rest));
}

inline Bytes label_class(int number, const Bytes& expression, const Bytes& symbol) {
  return Bytes().object(label_class_id, number, 7,
                        Bytes(expression).counting(44).add(symbol).zeros(30));
}

inline Bytes labels(int number, int shown, const Bytes& classes, int count = 1, int version = 2) {
  return Bytes().zeros(10).u16(shown).object(labels_id, number, version,
                                             Bytes().i32(count).add(classes));
}

// ---- After a class breaks legend ----

inline Bytes number_format(int number, int length = 22, const char* first_group = "7E4F4719") {
  const std::string id = std::string(first_group) + "-8E54-11D2-AAD8-000000000000";
  return Bytes().object(Class_id(id), number, 1, Bytes().zeros(static_cast<std::size_t>(length)));
}

inline Bytes normalization(const Bytes& format, const Bytes& field, int order) {
  return Bytes().zeros(18).u8(0).u16(0).add(format).add(field).u16(order).u16(0).i32(10000);
}

// ---- After a map's layers ----

inline Bytes envelope(int number, std::initializer_list<double> bounds, int version = 3) {
  return Bytes().object(envelope_id, number, version, Bytes().f64s(bounds));
}

// What follows an envelope: its coordinate system, stored before.
inline Bytes its_system() {
  return Bytes().i32(0).reference(Tmxd_geographic_coordinate_system::clsid, 60001);
}

// ---- The stream "Metadata" ----

inline Bytes metadata(int form, double date, std::size_t description = 20000) {
  Bytes bytes = Bytes().u16(form).add(text("Title")).add(text("Author"));
  bytes.add(text(std::string(description, 'd'))).add(text("Summary")).add(text("unused"));
  bytes.add(text("a, b")).i32(0).add(text("http://base")).add(text("unused"));
  return bytes.add(text("Credits")).add(text("C:\\m.mxd")).f64(date).zeros(20);
}

}  // namespace mxd::test
