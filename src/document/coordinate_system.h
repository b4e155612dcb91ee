// Coordinate systems: stored as text, not parsed.
#pragma once

#include "core/object_slot.h"

namespace mxd {

class Tmxd_coordinate_system : public Tmxd_obj {
 public:
  static const Object_family& family();
  static constexpr std::string_view empty_key = "coordinate_system";

  // Well-known text, NUL-terminated.
  virtual const char* get_wkt() const = 0;
};

// Base of the classes with well-known text.
class Wkt_coordinate_system : public Tmxd_coordinate_system {
 public:
  const char* get_wkt() const override { return wkt.c_str(); }
  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  std::string wkt;

 protected:
  void describe(Field_writer& writer) const override;
};

class Tmxd_geographic_coordinate_system final
    : public Copyable_class<Tmxd_geographic_coordinate_system, Wkt_coordinate_system> {
 public:
  static constexpr Class_id clsid{"A6A87A80-1DD1-11B2-BF51-08002022F573"};
  static constexpr std::string_view type = "mxd_geographic_coordinate_system";
};

class Tmxd_projected_coordinate_system final
    : public Copyable_class<Tmxd_projected_coordinate_system, Wkt_coordinate_system> {
 public:
  static constexpr Class_id clsid{"2A626700-1DD2-11B2-BF51-08002022F573"};
  static constexpr std::string_view type = "mxd_projected_coordinate_system";
};

class Tmxd_unknown_coordinate_system final
    : public Copyable_class<Tmxd_unknown_coordinate_system, Tmxd_coordinate_system> {
 public:
  static constexpr Class_id clsid{"B286C06B-0879-11D2-AACA-00C04FA33C20"};
  static constexpr std::string_view type = "mxd_unknown_coordinate_system";

  // The text is not well-known text, so hosts get an empty string; the outputs contain it.
  const char* get_wkt() const override { return ""; }
  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override;

  Wide_string text;

 protected:
  void describe(Field_writer& writer) const override;
};

using Tmxd_coordinate_system_slot = Tmxd_slot<Tmxd_coordinate_system>;

using Coordinate_system_classes =
    Class_list<Tmxd_unknown_coordinate_system, Tmxd_geographic_coordinate_system,
               Tmxd_projected_coordinate_system>;

// Calls the visitor with the coordinate system as its own class.
template <class Visitor>
decltype(auto) visit(const Tmxd_coordinate_system& system, Visitor&& visitor) {
  return visit_as(Coordinate_system_classes(), system, std::forward<Visitor>(visitor));
}

}  // namespace mxd
