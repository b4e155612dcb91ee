/* c_api_walk DOCUMENT XML WALK EXPECTED: a host in C that uses only the public header and the
   shared library. Writes the result of every getter for the document to WALK and compares it with
   EXPECTED. */
#include <stdio.h>
#include <string.h>

#include "walk.h"

static int failures = 0;

#define CHECK(condition)                                                   \
  do {                                                                     \
    if (!(condition)) {                                                    \
      ++failures;                                                          \
      printf("%s:%d: check failed: %s\n", __FILE__, __LINE__, #condition); \
    }                                                                      \
  } while (0)

static void from_ascii(const char* ascii, vq_mxd_char* wide, size_t capacity) {
  size_t i = 0;
  for (; ascii[i] != '\0' && i + 1 < capacity; ++i) wide[i] = (vq_mxd_char)(unsigned char)ascii[i];
  wide[i] = 0;
}

static void write_result(void* context, const walk_result* result) {
  FILE* file = context;
  const vq_mxd_char* unit;
  fprintf(file, "%*s%s = ", 2 * result->depth, "", result->getter);
  if (result->text != NULL) {
    fputs(result->text, file);
  } else if (result->units != NULL) {
    for (unit = result->units; *unit != 0; ++unit)
      fprintf(file, *unit < 128 ? "%c" : "\\u%04X", *unit);
  } else {
    fprintf(file, "%.10g", result->number);
  }
  fputc('\n', file);
}

static int write_walk(const vq_mxd_mxd* document, const char* path) {
  FILE* file = fopen(path, "w");
  if (file == NULL) return 0;
  walk_document(document, write_result, file);
  return fclose(file) == 0;
}

/* Whether the files have the same lines. The first difference is printed. */
static int same_lines(const char* path, const char* expected_path) {
  FILE* file = fopen(path, "r");
  FILE* expected_file = fopen(expected_path, "r");
  char line[1000], expected[1000];
  int number = 0, same = file != NULL && expected_file != NULL;
  while (same) {
    const char* read = fgets(line, sizeof line, file);
    ++number;
    same = (fgets(expected, sizeof expected, expected_file) != NULL) == (read != NULL);
    if (read == NULL) break;
    expected[strcspn(expected, "\r\n")] = line[strcspn(line, "\r\n")] = '\0';
    same = same && strcmp(line, expected) == 0;
  }
  if (!same) printf("%s differs from %s in line %d\n", path, expected_path, number);
  if (file != NULL) fclose(file);
  if (expected_file != NULL) fclose(expected_file);
  return same;
}

static int is_xml_file(const char* path) {
  char start[6] = "";
  FILE* file = fopen(path, "rb");
  if (file == NULL) return 0;
  if (fread(start, 1, 5, file) != 5) start[0] = 0;
  fclose(file);
  return strcmp(start, "<?xml") == 0;
}

int main(int argc, char** argv) {
  static const vq_mxd_char nowhere[] = {'n', 'o', '/', 's', 'u', 'c', 'h', 0};
  vq_mxd_char path[4096];
  vq_mxd_mxd* document = vq_mxd_mxd_create();
  if (argc != 5) return 2;
  from_ascii(argv[1], path, sizeof path / sizeof *path);
  vq_mxd_mxd_destroy(NULL);
  CHECK(vq_mxd_maps_get_size(vq_mxd_mxd_get_maps(document)) == 0);
  CHECK(vq_mxd_mxd_load(document, nowhere) == 0);
  CHECK(vq_mxd_mxd_load(document, path) == 1);
  CHECK(write_walk(document, argv[3]) && same_lines(argv[3], argv[4]));
  CHECK(vq_mxd_mxd_save_xml(document, nowhere) == 0);
  from_ascii(argv[2], path, sizeof path / sizeof *path);
  remove(argv[2]);
  CHECK(vq_mxd_mxd_save_xml(document, path) == 1);
  CHECK(is_xml_file(argv[2]));
  vq_mxd_mxd_destroy(document);
  printf("%d failed\n", failures);
  return failures == 0 ? 0 : 1;
}
