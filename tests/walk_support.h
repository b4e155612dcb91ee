/* The statements of the generated walk. Each expects the walk as `w` and a handle as `handle`. */
#ifndef VQK_TESTS_WALK_SUPPORT_H
#define VQK_TESTS_WALK_SUPPORT_H

#include <stddef.h>

#include "walk.h"

typedef struct walk {
  walk_visitor visitor;
  void* context;
  int depth;
  uint8_t bytes[3]; /* For getters with results in parameters. */
} walk;

static void visit(const walk* w, const char* getter, double number, const char* text,
                  const vq_mxd_char* units) {
  const walk_result result = {w->depth, getter, number, text, units};
  w->visitor(w->context, &result);
}

#define VISIT_NUMBER(getter, call) visit(w, getter, (double)(call), NULL, NULL)
#define VISIT_TEXT(getter, call) visit(w, getter, 0, call, NULL)
#define VISIT_UNITS(getter, call) visit(w, getter, 0, NULL, call)

#define VISIT_HANDLE(getter, kind, call)        \
  do {                                          \
    const vq_mxd_##kind* nested = call;         \
    VISIT_NUMBER(getter, nested != NULL);       \
    ++w->depth;                                 \
    if (nested != NULL) walk_##kind(w, nested); \
    --w->depth;                                 \
  } while (0)

/* A cast to another class returns null and is left out. */
#define VISIT_CAST(getter, kind, call)                  \
  do {                                                  \
    if (call != NULL) VISIT_HANDLE(getter, kind, call); \
  } while (0)

#define VISIT_EACH(first, end, statement)                \
  do {                                                   \
    int32_t index;                                       \
    for (index = first; index < end; ++index) statement; \
  } while (0)

#endif
