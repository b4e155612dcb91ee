#include "counted_memory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

// Relaxed throughout: an order between the threads would hide their races from ThreadSanitizer.
constexpr auto relaxed = std::memory_order_relaxed;

std::atomic<std::size_t> in_use{0};
std::atomic<std::size_t> most_in_use{0};
std::atomic<std::size_t> base{0};
std::atomic<std::uint64_t> allocations{0};
std::atomic<std::uint64_t> first_failure{0};

// Stands before each block, which stays aligned for everything.
struct alignas(std::max_align_t) Block_header {
  std::size_t size;
};

void* allocate(std::size_t size) noexcept {
  const std::uint64_t fails_at = first_failure.load(relaxed);
  if (allocations.fetch_add(1, relaxed) + 1 >= fails_at && fails_at != 0) return nullptr;
  // The sanitizers end the program instead of failing.
  constexpr std::uint64_t nobody_has = std::uint64_t{1} << 40;
  if (size >= nobody_has) return nullptr;
  auto* header = static_cast<Block_header*>(std::malloc(sizeof(Block_header) + size));
  if (!header) return nullptr;
  header->size = size;
  const std::size_t now = in_use.fetch_add(size, relaxed) + size;
  std::size_t most = most_in_use.load(relaxed);
  while (now > most && !most_in_use.compare_exchange_weak(most, now, relaxed)) continue;
  return header + 1;
}

void* allocate_or_throw(std::size_t size) {
  void* block = allocate(size);
  return block ? block : throw std::bad_alloc();
}

void release(void* block) noexcept {
  if (!block) return;
  Block_header* header = static_cast<Block_header*>(block) - 1;
  in_use.fetch_sub(header->size, relaxed);
  std::free(header);
}

}  // namespace

namespace mxd::fuzz {

std::size_t peak_memory() {
  return most_in_use - base;
}

void forget_peak() {
  base = in_use.load();
  most_in_use = in_use.load();
}

void fail_from_allocation(std::uint64_t number) {
  first_failure = 0;
  allocations = 0;
  first_failure = number;
}

}  // namespace mxd::fuzz

// The forms that the project and the standard library use. std::stable_sort takes the nothrow one.
void* operator new(std::size_t size) {
  return allocate_or_throw(size);
}
void* operator new[](std::size_t size) {
  return allocate_or_throw(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size);
}
void operator delete(void* block) noexcept {
  release(block);
}
void operator delete[](void* block) noexcept {
  release(block);
}
void operator delete(void* block, std::size_t) noexcept {
  release(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  release(block);
}
