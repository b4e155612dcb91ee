// Runs the command. Arguments are UTF-8; on POSIX systems they may be any bytes. Throws nothing.
// Returns the exit code.
#pragma once

namespace mxdinfo {

int run(int argc, const char* const* argv);

}  // namespace mxdinfo
