/*
 * Prints the parts of a multipart body. Arguments: what the page does with them, and the result of
 * its last call. "scan" takes every body; "stop" ends at the first part and "leave" goes on from
 * it, both without taking its body; "none" has no handler.
 */
#include <stdlib.h>
#include <string.h>

#include "tavik.h"

static const char* mode;
static int calls;

static void print_records(const cgi_attr* attrs, int32_t count) {
  for (int32_t i = 0; i < count; i++) {
    printf("[%s]=[%s]", attrs[i].name, attrs[i].value);
    if (attrs[i].parent) printf(" of %d", (int)(attrs[i].parent - attrs));
    puts("");
  }
}

static int32_t show(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  printf("kind %d count %d\n", (int)kind, (int)count);
  print_records(attrs, count);
  if (!attrs) return atoi(context);
  if (count == 1) return 5;
  if (++calls == 1 && strcmp(mode, "stop") == 0) return 1;
  if (calls == 1 && strcmp(mode, "leave") == 0) return 0;
  printf("{");
  int32_t result = scan_boundary(0, attrs[0].value, 9, mpart_fwrite, stdout);
  printf("} %d\n", (int)result);
  return result;
}

int main(int argc, char** argv) {
  static char last[] = "7";
  mode = argc > 1 ? argv[1] : "scan";
  int none = strcmp(mode, "none") == 0;
  printf("result %d\n", (int)getcgivars(argc > 2 ? argv[2] : last, none ? NULL : show, NULL));
  return 0;
}
