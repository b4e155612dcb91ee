/* Visits the result of every getter for everything in a document. make_walk.py writes the
 * functions. */
#ifndef VQK_TESTS_WALK_H
#define VQK_TESTS_WALK_H

#include "vqk_file_mxd.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A result is a text, UTF-16 units or a number. A handle is the number 1, or 0 if it is null. */
typedef struct walk_result {
  int depth;
  const char* getter;
  double number;
  const char* text;
  const vq_mxd_char* units;
} walk_result;

typedef void (*walk_visitor)(void* context, const walk_result* result);

void walk_document(const vq_mxd_mxd* document, walk_visitor visitor, void* context);

#ifdef __cplusplus
}
#endif
#endif
