#include <wchar.h>

#include "storage/native_output.h"

namespace mxd {

std::FILE* open_text_output(const Wide_string& path) {
  std::FILE* file = nullptr;
  return _wfopen_s(&file, path.c_str(), L"wt") == 0 ? file : nullptr;
}

}  // namespace mxd
