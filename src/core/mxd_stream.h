// The decoding stream over the bytes of "Maps".
#pragma once

#include <cstdint>
#include <span>

#include "core/load.h"
#include "storage/class_id_search.h"
#include "storage/ieee_stream.h"
#include "storage/memory_stream.h"

namespace mxd {

class Tmxd_mxd_stream final : public Tmxd_ieee_stream {
 public:
  // The arguments must outlive the stream. Objects read from it may outlive it.
  Tmxd_mxd_stream(Tmxd_stream_m& inner, const Class_id_scanner& known_ids, Load& load);

  [[nodiscard]] bool set_size(std::uint64_t new_size) override { return inner_.set_size(new_size); }
  std::uint64_t get_size() override { return inner_.get_size(); }
  [[nodiscard]] bool seek(std::uint64_t position) override { return inner_.seek(position); }
  std::uint64_t tell() override { return inner_.tell(); }
  [[nodiscard]] bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return !load_.budget().exhausted() && inner_.read(buffer, element_size, count) &&
           load_.spend(element_size * count);
  }
  [[nodiscard]] bool write(const void* buffer, std::uint64_t element_size,
                           std::uint64_t count) override {
    return inner_.write(buffer, element_size, count);
  }

  std::int64_t position() { return static_cast<std::int64_t>(tell()); }

  // A negative start is the current position. If nothing is found, the position becomes the start
  // of the search.
  Scan_result scan(std::span<const Guid> candidates, std::int64_t start, std::int64_t limit);
  Find_all_result find_all(std::span<const Guid> candidates, std::int64_t start,
                           std::int64_t limit);

  Load& load() { return load_; }

 private:
  Tmxd_stream_m& inner_;
  Class_id_index index_;
  Load& load_;
};

}  // namespace mxd
