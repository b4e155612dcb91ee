#include "rendering/unique_value_renderer.h"

#include "core/read_helpers.h"

namespace mxd {
namespace {

bool read_unique_value(Tmxd_unique_value& value, Tmxd_mxd_stream& stream) {
  if (!(stream.load().spend(sizeof value) && read_wide_string(stream, value.wstr) &&
        read_number(stream, value.int1) && read_number(stream, value.int2) &&
        read_number(stream, value.int3))) {
    return false;
  }
  if (value.int1 == -1 && value.int2 == -1) {
    // One more string follows. The value is kept even if the string cannot be read.
    Wide_string ignored;
    static_cast<void>(read_wide_string(stream, ignored));
  }
  return true;
}

void describe_unique_values(Field_writer& writer, const Tmxd_unique_values& values) {
  writer.group(Key("Tmxd_unique_values", "unique_values"), [&] {
    std::int32_t number = 0;
    for (const Tmxd_unique_value& value : values) {
      writer.group(xml_only("value_", ++number), [&] {
        writer.text("wstr", value.wstr);
        writer.integer("int1", value.int1);
        writer.integer("int2", value.int2);
        writer.integer("int3", value.int3);
      });
    }
  });
}

}  // namespace

bool read_unique_values(Tmxd_unique_values& values, Tmxd_mxd_stream& stream) {
  values.clear();
  return read_counted(stream, [&] {
    Tmxd_unique_value value;
    if (!read_unique_value(value, stream)) return false;
    values.push_back(std::move(value));
    return true;
  });
}

bool Tmxd_unique_value_renderer::read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) {
  return read_number(stream, propname_count) &&
         (propname_count < 1 || read_wide_string(stream, propname1)) &&
         read_bytes(stream, bytes1) &&
         (propname_count < 2 || read_wide_string(stream, propname2)) &&
         (propname_count < 3 || read_wide_string(stream, propname3)) &&
         read_bytes(stream, bytes2) && symbol_slot.read_or_null(stream, limit) &&
         read_number(stream, int2) && read_object(other_leg_grp, stream, -1, limit) &&
         (version < 4 || read_number(stream, ushort10)) &&
         read_object_if_present(main_leg_grp, stream, limit) && read_after_main_group(stream) &&
         read_unique_values(unique_values, stream);
}

// Documents without "all other values" have one legend group, which is read as the other group.
// Zeros follow it in place of the main group.
bool Tmxd_unique_value_renderer::read_after_main_group(Tmxd_mxd_stream& stream) {
  if (main_leg_grp.exists) return read_bytes(stream, bytes3, version < 4 ? 16 : 18);
  static_cast<void>(skip_null_guid(stream));
  return true;
}

void Tmxd_unique_value_renderer::describe(Field_writer& writer) const {
  writer.integer("propname_count", propname_count);
  writer.text("propname1", propname1);
  writer.text("propname2", propname2);
  writer.text("propname3", propname3);
  writer.bytes("bytes1", bytes1);
  writer.bytes("bytes2", bytes2);
  writer.slot("symbol_slot", symbol_slot);
  writer.integer("int2", int2);
  writer.object("other_leg_grp", other_leg_grp);
  writer.integer("ushort10", ushort10);
  writer.object("main_leg_grp", main_leg_grp);
  writer.bytes("bytes3", bytes3);
  describe_unique_values(writer, unique_values);
}

}  // namespace mxd
