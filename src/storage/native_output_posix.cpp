#include "storage/native_output.h"
#include "storage/unicode.h"

namespace mxd {

std::FILE* open_text_output(const Wide_string& path) {
  const auto bytes = path_to_bytes(path);
  return bytes ? std::fopen(bytes->c_str(), "w") : nullptr;
}

}  // namespace mxd
