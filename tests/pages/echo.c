/*
 * Prints what getcgivars() hands out: each call of a handler as its kind and its records, an
 * attribute's with the place of its header behind it, and the body of a part with the result of its
 * scan. Arguments: which handlers there are ("b" for the body, "q" for the query, or both), the
 * results of the query handler and of the body handler, and an oddity: the first part is left as it
 * is ("leave") or the last to be looked at ("stop"), or no read of the input works ("unreadable").
 */
#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "tavik.h"

static const char* oddity = "";

static int32_t show(void* results, cgi_attr* attrs, int32_t count, int32_t kind) {
  static int parts;
  printf("%d{", (int)kind);
  for (int32_t i = 0; i < count; i++) {
    printf("%s=%s|", attrs[i].name, attrs[i].value);
    if (attrs[i].parent) printf("^%d|", (int)(attrs[i].parent - attrs));
  }
  printf("}");
  if (kind != CGI_KIND_MULTIPART || !attrs) return ((int32_t*)results)[kind >= CGI_KIND_FORM];
  if (count == 1) return 5;
  if (++parts == 1 && *oddity) return strcmp(oddity, "stop") == 0;
  int32_t end = scan_boundary(0, attrs[0].value, 9, mpart_fwrite, stdout);
  printf("<%d", (int)end);
  return end;
}

int main(int argc, char** argv) {
  const char* handlers = argc > 1 ? argv[1] : "bq";
  int32_t results[] = {argc > 2 ? atoi(argv[2]) : 7, argc > 3 ? atoi(argv[3]) : 8};
  if (argc > 4) oddity = argv[4];
  if (strcmp(oddity, "unreadable") == 0) dup2(open("/", O_RDONLY), STDIN_FILENO);
  cgi_handler body = strchr(handlers, 'b') ? show : NULL;
  cgi_handler query = strchr(handlers, 'q') ? show : NULL;
  printf("result %d\n", (int)getcgivars(results, body, query));
  return 0;
}
