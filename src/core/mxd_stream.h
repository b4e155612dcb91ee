// The stream that a load decodes: the bytes of "Maps", with all that the load keeps while it lasts.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "core/error_sink.h"
#include "core/load_budget.h"
#include "core/object_registry.h"
#include "core/tmxd_obj.h"
#include "storage/class_id_search.h"
#include "storage/ieee_stream.h"
#include "storage/memory_stream.h"

namespace mxd {

// How much a load has done, besides what it spent.
struct Load_counts {
  std::uint64_t objects = 0;
  // Ids looked up and places found.
  std::uint64_t search_steps = 0;
};

class Tmxd_mxd_stream final : public Tmxd_ieee_stream {
 public:
  // All three must outlive the stream, the objects read from it need not.
  Tmxd_mxd_stream(Tmxd_stream_m& inner, const Class_id_scanner& known_ids, Error_sink& errors);

  bool set_size(std::uint64_t new_size) override { return inner_.set_size(new_size); }
  std::uint64_t get_size() override { return inner_.get_size(); }
  bool seek(std::uint64_t position) override { return inner_.seek(position); }
  std::uint64_t tell() override { return inner_.tell(); }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return !budget_.exhausted() && inner_.read(buffer, element_size, count) &&
           budget_.spend(element_size * count);
  }
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return inner_.write(buffer, element_size, count);
  }

  // A negative start is the current position. Where nothing is found, the stream stands where the
  // search began.
  Scan_result scan(std::span<const Guid> candidates, std::int64_t start, std::int64_t limit);
  Find_all_result find_all(std::span<const Guid> candidates, std::int64_t start,
                           std::int64_t limit);

  // An object dropped while the load lasts may still be referred to, and so lives until its end.
  void keep_until_load_ends(std::unique_ptr<Tmxd_obj> dropped);

  // The object took on more data after it had been registered.
  void add_copy_cost(const Tmxd_obj& object, std::uint64_t bytes);

  void register_object(const Tmxd_obj& object, std::uint64_t cost, int levels);
  Object_registry& registry() { return registry_; }
  Error_sink& errors() { return errors_; }
  Load_budget& budget() { return budget_; }
  const Load_counts& counts() const { return counts_; }

 private:
  friend class Nesting_scope;
  std::int64_t search_start(std::int64_t start);

  Tmxd_stream_m& inner_;
  Class_id_index index_;
  Error_sink& errors_;
  Load_budget budget_;
  Load_counts counts_;
  Object_registry registry_;
  std::vector<std::unique_ptr<Tmxd_obj>> dropped_;
  int level_ = 0;
  int levels_below_ = 0;
};

// One level of nested object reads, and what was spent in it.
class Nesting_scope {
 public:
  static constexpr int deepest = 100;

  explicit Nesting_scope(Tmxd_mxd_stream& stream);
  Nesting_scope(const Nesting_scope&) = delete;
  Nesting_scope& operator=(const Nesting_scope&) = delete;
  ~Nesting_scope();

  bool too_deep() const { return stream_.level_ > deepest; }
  // Whether a copy of that many levels, this one included, fits here.
  bool fits(int levels) const { return stream_.level_ - 1 + levels <= deepest; }
  // A copy stands for as many levels as its source.
  void count_levels(int levels);
  int levels() const { return stream_.levels_below_ + 1; }
  std::uint64_t cost() const { return stream_.budget().used() - used_before_; }

 private:
  Tmxd_mxd_stream& stream_;
  std::uint64_t used_before_;
  int levels_beside_;
};

}  // namespace mxd
