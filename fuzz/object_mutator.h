// Mutations that keep a stream of persisted objects one: whole objects are copied, repeated, moved
// and dropped, and their numbers, versions and counts edited.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace mxd::fuzz {

class Object_mutator {
 public:
  explicit Object_mutator(unsigned seed) : random_(seed) {}

  // Changes the stream in one way. It may grow by what it holds, at most to that size.
  void mutate(std::vector<std::uint8_t>& bytes, std::size_t most);

 private:
  struct Span {
    std::size_t begin;
    std::size_t end;
  };

  std::size_t below(std::size_t end) { return end == 0 ? 0 : random_() % end; }
  Span random_object(const std::vector<std::size_t>& places, std::size_t size);
  void insert(std::vector<std::uint8_t>& bytes, std::size_t place,
              const std::vector<std::uint8_t>& piece, std::size_t most);
  void edit_header(std::vector<std::uint8_t>& bytes, const std::vector<std::size_t>& places);
  void edit_count(std::vector<std::uint8_t>& bytes, Span object);
  std::vector<std::uint8_t> reference(const std::vector<std::uint8_t>& bytes, std::size_t place);

  std::mt19937 random_;
};

}  // namespace mxd::fuzz
