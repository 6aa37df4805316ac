/*
 * Prints what getcgivars() hands out. Arguments: which handlers there are ("both", "body",
 * "query", "none"), the results of the query handler and of the body handler, and "unreadable" for
 * a standard input that answers every read with an error.
 */
#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "tavik.h"

static int32_t results[4];

static int32_t show(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  printf("%s kind %d count %d\n", (const char*)context, (int)kind, (int)count);
  for (int32_t i = 0; i < count; i++) {
    printf("[%s]=[%s]%s\n", attrs[i].name, attrs[i].value, attrs[i].parent ? " child" : "");
  }
  return results[kind];
}

int main(int argc, char** argv) {
  const char* handlers = argc > 1 ? argv[1] : "both";
  results[CGI_KIND_QUERY] = results[CGI_KIND_POST_QUERY] = argc > 2 ? atoi(argv[2]) : 7;
  results[CGI_KIND_FORM] = results[CGI_KIND_MULTIPART] = argc > 3 ? atoi(argv[3]) : 8;
  int both = strcmp(handlers, "both") == 0;
  cgi_handler body = both || strcmp(handlers, "body") == 0 ? show : NULL;
  cgi_handler query = both || strcmp(handlers, "query") == 0 ? show : NULL;
  if (argc > 4 && strcmp(argv[4], "unreadable") == 0) dup2(open("/", O_RDONLY), STDIN_FILENO);
  char context[] = "echo";
  printf("result %d\n", (int)getcgivars(context, body, query));
  return 0;
}
