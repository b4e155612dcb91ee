/* The walk of the C host once more, with every function looked up by its name at run time. A call
   of an imported function goes through a pointer called __imp_ and the function's name; these are
   filled here instead of by the system's loader. */
#include <stdio.h>
#include <windows.h>

#define NAME(name) FARPROC __imp_##name;
#include "exported_names.inc"
#undef NAME

static const struct {
  const char* name;
  FARPROC* address;
} functions[] = {
#define NAME(name) {#name, &__imp_##name},
#include "exported_names.inc"
#undef NAME
};

int c_api_walk(int argc, char** argv);

int main(int argc, char** argv) {
  const size_t count = sizeof functions / sizeof *functions;
  const HMODULE library = LoadLibraryW(L"vqk_file_mxd.dll");
  size_t i;
  int result;
  if (library == NULL) {
    printf("the library cannot be loaded: %lu\n", GetLastError());
    return 1;
  }
  for (i = 0; i < count; ++i) {
    *functions[i].address = GetProcAddress(library, functions[i].name);
    if (*functions[i].address == NULL) {
      printf("%s is not exported\n", functions[i].name);
      return 1;
    }
  }
  printf("%d functions found by name\n", (int)count);
  result = c_api_walk(argc, argv);
  FreeLibrary(library);
  return result;
}
