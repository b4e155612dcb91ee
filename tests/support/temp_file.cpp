#include "support/temp_file.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace mxd::test {
namespace {

// Test programs run at the same time, so a name is taken only when the folder was not there.
std::filesystem::path new_folder() {
  std::random_device random;
  for (int i = 0; i < 100; ++i) {
    auto folder = std::filesystem::temp_directory_path() / ("vqk_" + std::to_string(random()));
    if (std::filesystem::create_directory(folder)) return folder;
  }
  throw std::runtime_error("no room for a temporary folder");
}

}  // namespace

Temp_file::Temp_file(std::span<const std::uint8_t> bytes, std::u16string_view name)
    : folder_(new_folder()), file_(folder_ / name), path_(file_.string<Wide_char>()) {
  write(bytes);
}

void Temp_file::write(std::span<const std::uint8_t> bytes) const {
  std::ofstream out(file_, std::ios::binary);
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
  if (!out.flush()) throw std::runtime_error("cannot write a temporary file");
}

Temp_file::~Temp_file() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

Wide_string Temp_file::beside(std::u16string_view name) const {
  return (folder_ / name).string<Wide_char>();
}

Wide_string Temp_file::folder() const {
  return folder_.string<Wide_char>();
}

Byte_run Temp_file::contents() const {
  std::ifstream in(file_, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string Temp_file::text() const {
  std::ifstream in(file_);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace mxd::test
