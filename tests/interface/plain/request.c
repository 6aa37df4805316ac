#include "plain.h"

static int32_t count_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  *(int32_t*)context = kind;
  return count + (attrs->parent == NULL ? 0 : 100);
}

static int32_t never(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)context, (void)attrs, (void)count;
  return -kind - 1;
}

void request(void) {
  int32_t kind = -1;
  int ends[2];
  char line[8];
  setenv("REQUEST_METHOD", "GET", 1);
  setenv("QUERY_STRING", "a=1&b=2", 1);
  CHECK(getcgivars(&kind, never, count_query) == 2 && kind == CGI_KIND_QUERY);
  if (pipe(ends) != 0) return;
  int32_t fd = ends[1];
  CHECK(mpart_write_fd(&fd, "a\r\nbody\r\n--B--\r\n", 16) == 0);
  CHECK(full_line_read_fd(ends[0], line, sizeof line) == 1 && strcmp(line, "a") == 0);
  CHECK(scan_boundary(ends[0], "B", 3, mpart_fwrite, stdout) == 3);
  CHECK(mpart_fwrite(stdout, "!", 1) == 0 && printed("body!"));
  CHECK(strcmp(valid_filename("C:\\a"), "a") == 0);
  close(ends[0]);
  close(ends[1]);
}
