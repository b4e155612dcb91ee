// The state of one load, shared by all that it reads: object numbers, budget, nesting, dropped
// objects.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/load_observer.h"

namespace mxd {

class Tmxd_obj;

// A registered object, and what a copy of it costs: the bytes spent to read it, and the levels of
// objects that it nests, itself included.
struct Registered_object {
  const Tmxd_obj* object = nullptr;
  std::uint64_t cost = 0;
  int levels = 0;
};

// The objects read so far by number. Owns nothing. The first object registered under a number keeps
// it.
class Object_registry {
 public:
  void add(std::uint16_t number, const Registered_object& entry) {
    std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page) page = std::make_unique<Page>();
    Registered_object& existing = (*page)[number % page_size];
    if (!existing.object) existing = entry;
  }

  // Null if no object has the number.
  const Registered_object* find(std::uint16_t number) const {
    const std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page || !(*page)[number % page_size].object) return nullptr;
    return &(*page)[number % page_size];
  }

  void add_cost(std::uint16_t number, const Tmxd_obj& object, std::uint64_t bytes) {
    if (!find(number)) return;
    Registered_object& entry = (*pages_[number / page_size])[number % page_size];
    if (entry.object == &object) entry.cost += bytes;
  }

 private:
  // Numbers ascend from 1 in most documents, so few pages are allocated.
  static constexpr std::size_t page_size = 256;
  using Page = std::array<Registered_object, page_size>;
  std::array<std::unique_ptr<Page>, (std::size_t{1} << 16) / page_size> pages_;
};

// Bounds the bytes that one load may decode and copy. Without a limit, a few hundred bytes of
// nested back-references expand to gigabytes. Real documents use less than 2 % of it. Once it is
// exhausted, every further read fails.
class Load_budget {
 public:
  explicit Load_budget(std::uint64_t stream_size)
      : limit_((std::uint64_t{4} << 20) + 16 * stream_size) {}

  [[nodiscard]] bool spend(std::uint64_t bytes) {
    if (exhausted_ || bytes > limit_ - used_) {
      exhausted_ = true;
      return false;
    }
    used_ += bytes;
    return true;
  }

  std::uint64_t used() const { return used_; }
  std::uint64_t limit() const { return limit_; }
  bool exhausted() const { return exhausted_; }

 private:
  std::uint64_t limit_;
  std::uint64_t used_ = 0;
  bool exhausted_ = false;
};

class Load {
 public:
  static constexpr int max_depth = 100;

  // The observer must outlive the load. Objects read by it may outlive it.
  Load(Load_observer& observer, std::uint64_t stream_size);
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;
  ~Load();

  [[nodiscard]] bool spend(std::uint64_t bytes) { return budget_.spend(bytes); }
  const Load_budget& budget() const { return budget_; }

  void report(const Read_error& error) { observer_.read_failed(error); }
  void count_search(std::size_t steps) { observer_.searched(steps); }

  // Null if no object with the number was read.
  const Registered_object* find(std::uint16_t number) const { return registry_.find(number); }
  // Adds to the copy cost of an object that is already registered.
  void add_copy_cost(const Tmxd_obj& object, std::uint64_t bytes);

  // Keeps a dropped object alive until the load ends, because later back-references may refer to it
  // or to something it holds. Null is ignored.
  void keep_until_load_ends(std::unique_ptr<Tmxd_obj> dropped);

  // The scope of one nested object read: counts nesting levels and the budget spent inside.
  class Object_scope {
   public:
    explicit Object_scope(Load& load);
    Object_scope(const Object_scope&) = delete;
    Object_scope& operator=(const Object_scope&) = delete;
    ~Object_scope();

    bool too_deep() const { return load_.depth_ > max_depth; }
    // Whether a copy that nests this many levels, itself included, fits here.
    bool fits(int levels) const { return load_.depth_ - 1 + levels <= max_depth; }
    // Accounts for a copied object that nests this many levels.
    void count_levels(int levels);
    // Registers the object, now that its fields are read.
    void register_object(const Tmxd_obj& object);

   private:
    int levels() const { return load_.max_child_levels_ + 1; }

    Load& load_;
    std::uint64_t used_before_;
    int sibling_levels_;
  };

 private:
  Load_observer& observer_;
  Load_budget budget_;
  Object_registry registry_;
  std::vector<std::unique_ptr<Tmxd_obj>> dropped_;
  int depth_ = 0;
  int max_child_levels_ = 0;
};

}  // namespace mxd
