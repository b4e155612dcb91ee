// Runs a fuzz target on files: replay FILE_OR_FOLDER...
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "target.h"

namespace {

namespace fs = std::filesystem;

int replay(const fs::path& path) {
  int inputs = 0;
  if (fs::is_directory(path)) {
    for (const auto& entry : fs::directory_iterator(path)) inputs += replay(entry.path());
    return inputs;
  }
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  std::fprintf(stderr, "%s\n", path.string().c_str());
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  int inputs = 0;
  for (int i = 1; i < count; ++i) inputs += replay(arguments[i]);
  std::printf("inputs: %d\n", inputs);
  return inputs > 0 ? 0 : 1;
}
