// The state of one load: the registry of object numbers, the byte budget, the nesting depth and the
// objects that were dropped.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/load_observer.h"

namespace mxd {

class Tmxd_obj;

// An object that back-references can refer to.
struct Registered_object {
  const Tmxd_obj* object = nullptr;
  // The bytes that a copy takes from the budget: as many as reading the object took.
  std::uint64_t cost = 0;
  // The height of the object's tree: 1 if it contains no other object.
  int levels = 0;
};

// Finds an object, among those read so far, by its number. Does not own the objects: they must
// outlive the registry. If two have the same number, the first one stays registered.
class Object_registry {
 public:
  void add(std::uint16_t number, const Registered_object& entry) {
    std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page) page = std::make_unique<Page>();
    Registered_object& existing = (*page)[number % page_size];
    if (!existing.object) existing = entry;
  }

  // Null if no object is registered under the number.
  const Registered_object* find(std::uint16_t number) const {
    const std::unique_ptr<Page>& page = pages_[number / page_size];
    if (!page || !(*page)[number % page_size].object) return nullptr;
    return &(*page)[number % page_size];
  }

  // Ignored if another object, or none, is registered under the number.
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

// Limits the bytes that one load may decode and copy: 4 MiB plus 16 times the stream size. Without
// a limit, a few hundred bytes of nested back-references could expand to gigabytes. Real documents
// use less than 2% of the limit. Once a request exceeds it, every further read fails.
class Load_budget {
 public:
  explicit Load_budget(std::uint64_t stream_size)
      : limit_((std::uint64_t{4} << 20) + 16 * stream_size) {}

  // Returns false, and counts nothing, if fewer bytes are left; so do all later calls.
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

// One load. Every object read through it shares its registry, budget and nesting depth.
class Load {
 public:
  // An object inside this many others is refused: damaged data could exhaust the stack.
  static constexpr int max_depth = 100;

  // The observer must outlive the load. Objects read during the load may outlive it, but none may
  // be destroyed before it: see keep_until_load_ends().
  Load(Load_observer& observer, std::uint64_t stream_size);
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;
  ~Load();

  [[nodiscard]] bool spend(std::uint64_t bytes) { return budget_.spend(bytes); }
  const Load_budget& budget() const { return budget_; }

  void report(const Read_error& error) { observer_.read_failed(error); }
  void count_search(std::size_t steps) { observer_.searched(steps); }

  // Null if no object is registered under the number.
  const Registered_object* find(std::uint16_t number) const { return registry_.find(number); }
  // Adds to the cost of copying the object. Ignored if the object is not registered.
  void add_copy_cost(const Tmxd_obj& object, std::uint64_t bytes);

  // Keeps a dropped object alive until the load ends, because later back-references may refer to it
  // or to something it holds. Null is ignored.
  void keep_until_load_ends(std::unique_ptr<Tmxd_obj> dropped);

  // Lives while one object is read. Tracks the nesting depth and the bytes spent on the object.
  class Object_scope {
   public:
    explicit Object_scope(Load& load);
    Object_scope(const Object_scope&) = delete;
    Object_scope& operator=(const Object_scope&) = delete;
    ~Object_scope();

    bool too_deep() const { return load_.depth_ > max_depth; }
    // Whether a copy of this many levels would stay within max_depth.
    bool fits(int levels) const { return load_.depth_ - 1 + levels <= max_depth; }
    // Call after copying an object of this many levels into the one being read.
    void add_copied_levels(int levels);
    // Call once the fields are read: only then are the cost and levels of the object known.
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
