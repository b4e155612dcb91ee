// The whole command, its arguments in UTF-8.
#pragma once

namespace mxdinfo {

int run(int argc, const char* const* argv);

}  // namespace mxdinfo
