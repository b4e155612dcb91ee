#include "support/special_files.h"

namespace mxd::test {

std::vector<std::pair<std::string, Wide_string>> special_files(const Temp_file& file) {
  return {{"folder", file.folder()}};
}

std::vector<Wide_string> undecodable_files(const Temp_file&) {
  return {};
}

}  // namespace mxd::test
