// A document as a host has it.
#pragma once

#include "storage/text.h"
#include "vqk_file_mxd.h"

namespace mxd::test {

class Host_document {
 public:
  Host_document() = default;
  Host_document(const Host_document&) = delete;
  Host_document& operator=(const Host_document&) = delete;
  ~Host_document() { vq_mxd_mxd_destroy(handle_); }

  bool load(const Wide_string& path) { return vq_mxd_mxd_load(handle_, path.c_str()) == 1; }
  bool save(const Wide_string& path) const {
    return vq_mxd_mxd_save_xml(handle_, path.c_str()) == 1;
  }
  std::int64_t maps() const { return vq_mxd_maps_get_size(vq_mxd_mxd_get_maps(handle_)); }
  const vq_mxd_mxd* handle() const { return handle_; }

 private:
  vq_mxd_mxd* handle_ = vq_mxd_mxd_create();
};

}  // namespace mxd::test
