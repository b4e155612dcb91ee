// Lets the fuzzer of the stream change whole objects as well as bytes.
#include <algorithm>

#include "object_mutator.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  if (seed % 3 == 0) return LLVMFuzzerMutate(data, size, most);
  std::vector<std::uint8_t> bytes(data, data + size);
  mxd::fuzz::Object_mutator mutator(seed);
  for (unsigned left = 1 + seed / 3 % 3; left != 0; --left) mutator.mutate(bytes, most);
  bytes.resize(std::min(bytes.size(), most));
  std::copy(bytes.begin(), bytes.end(), data);
  return bytes.size();
}
