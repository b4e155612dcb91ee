// mutate_documents MUTATIONS STEP DOCUMENT...: loads each document cut at every multiple of STEP
// and with that many random changes, the same in every run, and prints the most that this cost, in
// multiples of what the intact document costs. Fails when a load did ten times the intact work,
// read more than the whole file or took more memory than it may.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "measured_load.h"
#include "storage/unicode.h"
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

constexpr std::size_t counter_count = 5;
using Counters = std::array<std::uint64_t, counter_count>;

// The work, then what it adds up from. The bytes of a sector count only when they are decoded: a
// document of few maps is a small part of its file, and a damaged directory can claim all of it.
Counters counters(const fuzz::Work& work) {
  const std::uint64_t sectors = (work.bytes_read + 511) / 512;
  return {sectors + work.spent + work.objects + work.search_steps, sectors, work.spent,
          work.objects, work.search_steps};
}

struct Most {
  Counters counters{};
  std::uint64_t bytes_read = 0;
  std::uint64_t memory = 0;
};

void load(const test::Temp_file& file, const Byte_run& bytes, Most& most, int& loaded) {
  file.write(bytes);
  const fuzz::Work work = fuzz::work_of_file(file.path());
  const Counters counted = counters(work);
  for (std::size_t i = 0; i < counter_count; ++i) {
    most.counters[i] = std::max(most.counters[i], counted[i]);
  }
  most.bytes_read = std::max(most.bytes_read, work.bytes_read);
  most.memory = std::max(most.memory, work.memory);
  loaded += work.loaded;
}

double ratio(std::uint64_t value, std::uint64_t to) {
  return static_cast<double>(value) / static_cast<double>(std::max<std::uint64_t>(to, 1));
}

bool check(const std::filesystem::path& path, int mutations, std::size_t step) {
  std::ifstream in(path, std::ios::binary);
  const Byte_run intact{std::istreambuf_iterator<char>(in), {}};
  const test::Temp_file file(intact);
  const fuzz::Work work = fuzz::work_of_file(file.path());
  Most most;
  int cuts = 0, loaded_cuts = 0, loaded_changes = 0;
  for (std::size_t size = 0; size < intact.size(); size += step, ++cuts) {
    load(file, {intact.begin(), intact.begin() + static_cast<std::ptrdiff_t>(size)}, most,
         loaded_cuts);
  }
  std::mt19937 random(1);
  for (int i = 0; i < mutations; ++i) {
    Byte_run bytes = intact;
    for (auto times = 1 + random() % 4; times != 0; --times) change(bytes, random);
    load(file, bytes, most, loaded_changes);
  }
  std::printf("%-31s %8zu %5d %5d %6d %6d", path.filename().string().c_str(), intact.size(), cuts,
              loaded_cuts, mutations, loaded_changes);
  const Counters counted = counters(work);
  for (std::size_t i = 0; i < counter_count; ++i) {
    std::printf(" %7.2f", ratio(most.counters[i], counted[i]));
  }
  std::printf(" %6.1f%% %7.2f%% %6.1f\n", 100 * ratio(most.bytes_read, intact.size()),
              100 * ratio(work.spent, work.limit), ratio(most.memory, 1 << 20));
  std::fflush(stdout);
  return most.counters[0] <= 10 * counted[0] && most.bytes_read <= intact.size() &&
         most.memory < (std::uint64_t{64} << 20) + 32 * intact.size();
}

}  // namespace

int main(int count, char** arguments) {
  const int step = count < 4 ? 0 : std::atoi(arguments[2]);
  if (step < 1) return 2;
  std::printf("%-31s %8s %5s %5s %6s %6s %7s %7s %7s %7s %7s %7s %8s %6s\n", "document", "bytes",
              "cuts", "load", "change", "load", "work", "sectors", "budget", "objects", "steps",
              "read", "intact", "MiB");
  bool ok = true;
  for (int i = 3; i < count; ++i)
    ok = check(arguments[i], std::atoi(arguments[1]), static_cast<std::size_t>(step)) && ok;
  return ok ? 0 : 1;
}
