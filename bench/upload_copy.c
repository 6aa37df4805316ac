/* No parsing at all: the body is copied in pieces of PIECE bytes. */
#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include "work.h"

int main(void) {
  static char piece[PIECE];
  int sink = open("/dev/null", O_WRONLY);
  for (ssize_t got; (got = read(0, piece, sizeof piece)) > 0;) {
    if (write(sink, piece, (size_t)got) < 0) return 1;
  }
  fputs(HEADER "taken\r\n", stdout);
  return 0;
}
