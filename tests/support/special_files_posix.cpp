#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "storage/unicode.h"
#include "support/special_files.h"

namespace mxd::test {

std::vector<std::pair<std::string, Wide_string>> special_files(const Temp_file& file) {
  const Wide_string pipe = file.beside(u"pipe");
  ::mkfifo(std::filesystem::path(pipe).c_str(), 0600);
  return {{"folder", file.folder()}, {"pipe", pipe}, {"device", from_ascii("/dev/zero")}};
}

std::vector<Wide_string> undecodable_files(const Temp_file& file) {
  const std::string folder = std::filesystem::path(file.folder()).string() + '/';
  std::vector<Wide_string> paths;
  for (const char* name :
       {"\xFF\x80", "a\xC0\xAF", "\xED\xA0\xBD\xED\xB2\x80", "\xE2\x82", "\xF4\x90\x80\x80",
        "\xE0\x80\xAF", "\xF0\x9F\x92\x80\xF0\x8F\xBF\xBF", "\xD0\x9A\x9A\xF0\x9F\x97\xBA"}) {
    std::ofstream(folder + name) << name;
    paths.push_back(path_from_bytes(folder + name));
  }
  return paths;
}

}  // namespace mxd::test
