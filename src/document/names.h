// Dataset and workspace names: where a layer's data lives.
#pragma once

#include "core/object_slot.h"
#include "storage/fixed_bytes.h"

namespace mxd {

class Tmxd_workspace_name final : public Copyable_class<Tmxd_workspace_name> {
 public:
  static constexpr Class_id clsid{"5A350011-E371-11D1-AA82-00C04FA33A15"};
  static constexpr std::string_view type = "mxd_workspace_name";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string name;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_feature_dataset_name final : public Copyable_class<Tmxd_feature_dataset_name> {
 public:
  static constexpr Class_id clsid{"198846CF-CA42-11D1-AA7C-00C04FA33A15"};
  static constexpr std::string_view type = "mxd_feature_dataset_name";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string str1, str2, str3, str4;
  std::uint8_t byte1 = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_basic_feature_class_name : public Tmxd_obj {
 public:
  static const Object_family& family();
  static constexpr std::string_view empty_key = "basic_feature_class_name";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string name;
  Fixed_bytes<6> bytes1;
  Wide_string type_name1, type_name2;
  std::int32_t geom_type = 0;
  Fixed_bytes<6> bytes2;
  Tmxd_feature_dataset_name feature_dataset_name;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_feature_class_name final
    : public Copyable_class<Tmxd_feature_class_name, Tmxd_basic_feature_class_name> {
 public:
  static constexpr Class_id clsid{"198846D0-CA42-11D1-AA7C-00C04FA33A15"};
  static constexpr std::string_view type = "mxd_feature_class_name";
};

class Tmxd_fgdb_feature_class_name final
    : public Copyable_class<Tmxd_fgdb_feature_class_name, Tmxd_basic_feature_class_name> {
 public:
  static constexpr Class_id clsid{"75E10086-4226-42AC-AFEC-CBB9B748F847"};
  static constexpr std::string_view type = "mxd_fgdb_feature_class_name";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::int32_t int1 = 0;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_basic_raster_dataset_name : public Tmxd_obj {
 public:
  static const Object_family& family();
  static constexpr std::string_view empty_key = "basic_raster_dataset_name";

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::uint16_t ushort1 = 0;
  Wide_string str1, str2, str3, str4;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_raster_dataset_name final
    : public Copyable_class<Tmxd_raster_dataset_name, Tmxd_basic_raster_dataset_name> {
 public:
  static constexpr Class_id clsid{"75BCE6E2-8AF5-478E-8892-FA45CA50AF4D"};
  static constexpr std::string_view type = "mxd_raster_dataset_name";
};

class Tmxd_fgdb_raster_dataset_name final
    : public Copyable_class<Tmxd_fgdb_raster_dataset_name, Tmxd_basic_raster_dataset_name> {
 public:
  static constexpr Class_id clsid{"F2137C6F-9075-4BAF-9B38-E2F36083FBF4"};
  static constexpr std::string_view type = "mxd_fgdb_raster_dataset_name";
};

using Tmxd_feature_class_name_slot = Tmxd_slot<Tmxd_basic_feature_class_name>;
using Tmxd_raster_dataset_name_slot = Tmxd_slot<Tmxd_basic_raster_dataset_name>;

using Feature_class_name_classes =
    Class_list<Tmxd_feature_class_name, Tmxd_fgdb_feature_class_name>;
using Raster_dataset_name_classes =
    Class_list<Tmxd_raster_dataset_name, Tmxd_fgdb_raster_dataset_name>;

// Each calls the visitor with the name as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_basic_feature_class_name& name, Visitor&& visitor) {
  return visit_as(Feature_class_name_classes(), name, std::forward<Visitor>(visitor));
}
template <class Visitor>
decltype(auto) visit(const Tmxd_basic_raster_dataset_name& name, Visitor&& visitor) {
  return visit_as(Raster_dataset_name_classes(), name, std::forward<Visitor>(visitor));
}

}  // namespace mxd
