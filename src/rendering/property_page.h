// Property pages: the marks that stand behind some renderers. A page is its class id and nothing
// more, neither numbered nor shown.
#pragma once

#include <memory>
#include <span>

#include "core/mxd_stream.h"

namespace mxd {

class Tmxd_property_page {
 public:
  Tmxd_property_page() = default;
  Tmxd_property_page(const Tmxd_property_page&) = delete;
  Tmxd_property_page& operator=(const Tmxd_property_page&) = delete;
  virtual ~Tmxd_property_page() = default;

  virtual const Class_id& class_id() const = 0;
  virtual std::string_view type_name() const = 0;
  virtual std::string dump_fields(int /*indent*/, int /*step*/) const { return {}; }
  virtual void write_fields_xml(Tmxd_xml_node /*element*/) const {}
  virtual bool read_fields(Tmxd_mxd_stream& /*stream*/, std::int64_t /*limit*/) { return true; }
};

class Tmxd_unique_value_property_page final : public Tmxd_property_page {
 public:
  static constexpr Class_id clsid{"683C994E-A17B-11D1-8816-080009EC732A"};

  const Class_id& class_id() const override { return clsid; }
  std::string_view type_name() const override { return "mxd_unique_value_property_page"; }
};

class Tmxd_graduated_color_property_page final : public Tmxd_property_page {
 public:
  static constexpr Class_id clsid{"683C994F-A17B-11D1-8816-080009EC732A"};

  const Class_id& class_id() const override { return clsid; }
  std::string_view type_name() const override { return "mxd_graduated_color_property_page"; }
};

std::span<const Guid> property_page_ids();

// Null for the id of anything else.
std::unique_ptr<Tmxd_property_page> create_property_page(const Guid& class_id);

class Tmxd_property_page_slot {
 public:
  // True with an empty slot when no page stands before the limit; behind a page the stream stands
  // right after its id.
  bool read(Tmxd_mxd_stream& stream, std::int64_t limit);

  Tmxd_property_page* get() const { return page_.get(); }

 private:
  std::unique_ptr<Tmxd_property_page> page_;
};

}  // namespace mxd
