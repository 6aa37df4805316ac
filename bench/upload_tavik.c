#include <fcntl.h>
#include <tavik.h>

#include "work.h"

static int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  return count < 2 ? 0 : scan_boundary(0, attrs[0].value, 1, mpart_write_fd, context);
}

int main(void) {
  int32_t sink = open("/dev/null", O_WRONLY);
  getcgivars(&sink, take, NULL);
  print_str(HEADER "taken\r\n");
  return 0;
}
