/* Asks every getter that a host has for all that a document holds. */
#ifndef VQK_TESTS_WALK_H
#define VQK_TESTS_WALK_H

#include "vqk_file_mxd.h"

#ifdef __cplusplus
extern "C" {
#endif

/* An answer is a text, UTF-16 units or a number; of an object, whether there is one. */
typedef struct walk_answer {
  int depth;
  const char* getter;
  double number;
  const char* text;
  const vq_mxd_char* units;
} walk_answer;

typedef void (*walk_listener)(void* context, const walk_answer* answer);

void walk_document(const vq_mxd_mxd* document, walk_listener tell, void* context);

#ifdef __cplusplus
}
#endif
#endif
