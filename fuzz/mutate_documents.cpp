// mutate_documents MUTATIONS STEP DOCUMENT...: loads each document cut at every multiple of STEP
// and with that many random changes, the same in every run, and tells the most that this cost.
// Fails when a load did ten times the work of the intact document or took more memory than it may.
// Reading a file once is never too much: a damaged table can claim all of it for a small stream.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "measured_load.h"
#include "storage/native_path.h"
#include "support/temp_file.h"

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

std::uint64_t steps(const fuzz::Work& work) {
  return work.bytes_read + work.spent + work.search_steps;
}

struct Most {
  std::uint64_t steps = 0;
  std::uint64_t memory = 0;
  double share = 0;
  int loaded = 0;
  int loads = 0;
};

void load(const test::Temp_file& file, const Byte_run& bytes, Most& most) {
  file.write(bytes);
  const fuzz::Work work = fuzz::work_of_file(file.path());
  most.steps = std::max(most.steps, steps(work));
  most.memory = std::max(most.memory, work.memory);
  if (work.limit != 0) {
    most.share =
        std::max(most.share, static_cast<double>(work.spent) / static_cast<double>(work.limit));
  }
  most.loaded += work.loaded;
  ++most.loads;
}

bool check(const std::filesystem::path& path, int mutations, std::size_t step) {
  std::ifstream in(path, std::ios::binary);
  const Byte_run intact{std::istreambuf_iterator<char>(in), {}};
  const test::Temp_file file(intact);
  const fuzz::Work work = fuzz::work_of_file(file.path());
  Most cut, changed;
  for (std::size_t size = 0; size < intact.size(); size += step) {
    load(file, {intact.begin(), intact.begin() + static_cast<std::ptrdiff_t>(size)}, cut);
  }
  std::mt19937 random(1);
  for (int i = 0; i < mutations; ++i) {
    Byte_run bytes = intact;
    for (auto times = 1 + random() % 4; times != 0; --times) change(bytes, random);
    load(file, bytes, changed);
  }
  const std::uint64_t most_memory = (std::uint64_t{64} << 20) + 32 * intact.size();
  const double times = static_cast<double>(std::max(cut.steps, changed.steps)) /
                       static_cast<double>(std::max<std::uint64_t>(steps(work), 1));
  const double mib = static_cast<double>(std::max(cut.memory, changed.memory)) / (1 << 20);
  std::printf(
      "%s: %zu bytes, budget %.2f%%; cuts %d (%d loaded), changes %d (%d loaded): work %.2f times "
      "the intact, budget %.2f%%, memory %.1f MiB\n",
      path.filename().string().c_str(), intact.size(),
      100 * static_cast<double>(work.spent) / static_cast<double>(work.limit), cut.loads,
      cut.loaded, changed.loads, changed.loaded, times, 100 * std::max(cut.share, changed.share),
      mib);
  std::fflush(stdout);
  const bool read_once = std::max(cut.steps, changed.steps) <= intact.size();
  return (times <= 10 || read_once) && std::max(cut.memory, changed.memory) < most_memory;
}

}  // namespace

int main(int count, char** arguments) {
  const int step = count < 4 ? 0 : std::atoi(arguments[2]);
  if (step < 1) return 2;
  bool ok = true;
  for (int i = 3; i < count; ++i)
    ok = check(arguments[i], std::atoi(arguments[1]), static_cast<std::size_t>(step)) && ok;
  return ok ? 0 : 1;
}
