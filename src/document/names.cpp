#include "document/names.h"

#include "core/object_read.h"

namespace mxd {

bool Tmxd_workspace_name::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_wide_string(stream, name);
}

void Tmxd_workspace_name::describe(Field_writer& writer) const {
  writer.text("name", name);
}

bool Tmxd_feature_dataset_name::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_wide_string(stream, str1) && read_wide_string(stream, str2) &&
         read_wide_string(stream, str3) && read_wide_string(stream, str4) &&
         read_number(stream, byte1);
}

void Tmxd_feature_dataset_name::describe(Field_writer& writer) const {
  writer.text("str1", str1);
  writer.text("str2", str2);
  writer.text("str3", str3);
  // Consumers expect the fourth string under the key of the third.
  writer.text("str3", str4);
  writer.integer("byte1", byte1);
}

bool Tmxd_basic_feature_class_name::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_wide_string(stream, name) && read_bytes(stream, bytes1) &&
         read_wide_string(stream, type_name1) && read_wide_string(stream, type_name2) &&
         read_number(stream, geom_type) && read_bytes(stream, bytes2) &&
         read_object_if_present(feature_dataset_name, stream, limit, Back_reference::copy);
}

void Tmxd_basic_feature_class_name::describe(Field_writer& writer) const {
  writer.text("name", name);
  writer.bytes("bytes1", bytes1);
  writer.text("type_name1", type_name1);
  // The dump has the second type name three times, and no geometry type.
  writer.text(dump_only("type_nam2"), type_name2);
  writer.text(dump_only("type_nam2"), type_name2);
  writer.text("type_name2", type_name2);
  writer.integer(xml_only("geom_type"), geom_type);
  writer.bytes("bytes2", bytes2);
  writer.object("feature_dataset_name", feature_dataset_name);
}

bool Tmxd_fgdb_feature_class_name::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_number(stream, int1) && Tmxd_basic_feature_class_name::read_fields(stream, limit);
}

void Tmxd_fgdb_feature_class_name::describe(Field_writer& writer) const {
  writer.integer("int1", int1);
  Tmxd_basic_feature_class_name::describe(writer);
}

bool Tmxd_basic_raster_dataset_name::read_fields(Tmxd_mxd_stream& stream, std::int64_t /*limit*/) {
  return read_number(stream, ushort1) && read_wide_string(stream, str1) &&
         read_wide_string(stream, str2) && read_wide_string(stream, str3) &&
         read_wide_string(stream, str4);
}

void Tmxd_basic_raster_dataset_name::describe(Field_writer& writer) const {
  writer.integer("ushort1", ushort1);
  writer.text("str1", str1);
  writer.text("str2", str2);
  writer.text("str3", str3);
  writer.text(Key("str3", "str4"), str4);
}

const Object_family& Tmxd_basic_feature_class_name::family() {
  static const Object_family family = family_of<Feature_class_name_classes>();
  return family;
}

const Object_family& Tmxd_basic_raster_dataset_name::family() {
  static const Object_family family = family_of<Raster_dataset_name_classes>();
  return family;
}

}  // namespace mxd
