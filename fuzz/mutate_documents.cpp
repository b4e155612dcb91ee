// mutate_documents MUTATIONS STEP DOCUMENT...: loads each document cut at every multiple of STEP
// and with that many random changes, the same in every run, and prints the most that this cost, in
// multiples of what the intact document costs. Fails when a load did ten times the intact work,
// read more than the whole file or took more memory than it may.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "measured_load.h"

namespace {

using namespace mxd;

// One byte, or a block that becomes noise, one value or a copy of another block.
void change(Byte_run& bytes, std::mt19937& random) {
  const auto byte = [&] { return static_cast<std::uint8_t>(random() >> 8); };
  const std::size_t place = random() % bytes.size();
  const auto kind = random() % 5;
  if (kind < 2) {
    bytes[place] = byte();
    return;
  }
  const std::size_t size = std::min<std::size_t>(1 + random() % 600, bytes.size() - place);
  const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(place);
  const auto end = begin + static_cast<std::ptrdiff_t>(size);
  if (kind == 2) {
    std::generate(begin, end, byte);
  } else if (kind == 3) {
    std::fill(begin, end, byte());
  } else {
    const auto from = static_cast<std::ptrdiff_t>(random() % (bytes.size() - size + 1));
    const Byte_run copy(bytes.begin() + from, bytes.begin() + from + (end - begin));
    std::copy(copy.begin(), copy.end(), begin);
  }
}

// The bytes of a sector count only when they are decoded: a document of few maps is a small part of
// its file, and a damaged directory can claim all of it.
std::uint64_t steps(const fuzz::Work& work) {
  return (work.bytes_read + 511) / 512 + work.spent + work.objects + work.search_steps;
}

struct Most {
  std::uint64_t steps = 0;
  std::uint64_t bytes_read = 0;
  std::uint64_t memory = 0;
  int loaded = 0;
};

void load(const Byte_run& bytes, Most& most) {
  const fuzz::Work work = fuzz::work_of_file(bytes);
  most.steps = std::max(most.steps, steps(work));
  most.bytes_read = std::max(most.bytes_read, work.bytes_read);
  most.memory = std::max(most.memory, work.memory);
  most.loaded += work.found;
}

double ratio(std::uint64_t value, std::uint64_t to) {
  return static_cast<double>(value) / static_cast<double>(std::max<std::uint64_t>(to, 1));
}

bool check(const std::filesystem::path& path, int mutations, std::size_t step) {
  std::ifstream in(path, std::ios::binary);
  const Byte_run intact{std::istreambuf_iterator<char>(in), {}};
  const std::uint64_t intact_steps = steps(fuzz::work_of_file(intact));
  Most most;
  int tries = mutations;
  for (std::size_t size = 0; size < intact.size(); size += step, ++tries) {
    load({intact.begin(), intact.begin() + static_cast<std::ptrdiff_t>(size)}, most);
  }
  std::mt19937 random(1);
  for (int i = 0; i < mutations; ++i) {
    Byte_run bytes = intact;
    for (auto times = 1 + random() % 4; times != 0; --times) change(bytes, random);
    load(bytes, most);
  }
  std::printf("%-31s %8zu %6d %6d %7.2f %6.1f%% %6.1f\n", path.filename().string().c_str(),
              intact.size(), tries, most.loaded, ratio(most.steps, intact_steps),
              100 * ratio(most.bytes_read, intact.size()), ratio(most.memory, 1 << 20));
  std::fflush(stdout);
  return most.steps <= 10 * intact_steps && most.bytes_read <= intact.size() &&
         most.memory < (std::uint64_t{64} << 20) + 32 * intact.size();
}

}  // namespace

int main(int count, char** arguments) {
  const int step = count < 4 ? 0 : std::atoi(arguments[2]);
  if (step < 1) return 2;
  std::printf("%-31s %8s %6s %6s %7s %7s %6s\n", "document", "bytes", "tries", "loaded", "work",
              "read", "MiB");
  bool ok = true;
  for (int i = 3; i < count; ++i)
    ok = check(arguments[i], std::atoi(arguments[1]), static_cast<std::size_t>(step)) && ok;
  return ok ? 0 : 1;
}
