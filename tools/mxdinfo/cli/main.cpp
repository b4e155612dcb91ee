#include "mxdinfo/cli/run.h"

int main(int argc, char** argv) {
  return mxdinfo::run(argc, argv);
}
